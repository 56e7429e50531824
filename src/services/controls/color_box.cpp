#include "services/controls/color_box.h"

#include "services/look/artwork.h"
#include "services/look/theme.h"
#include "services/values/color_value.h"

#include <QPainter>

namespace tavmoor {

ColorBox::ColorBox(const char* objectName, const char16_t* text, const char16_t* tooltip,
                   QWidget* parent)
    : QAbstractButton(parent) {
    setObjectName(QString::fromLatin1(objectName));
    setText(QString::fromUtf16(text));
    setToolTip(QString::fromUtf16(tooltip));
    setAccessibleName(text[0] != u'\0' ? QString::fromUtf16(text) : QString::fromUtf16(tooltip));
    setCursor(HandCursor());
}

void ColorBox::SetColor(ColorValue color) {
    color_ = color;
    setAccessibleDescription(ToQColor(color).name());
    update();
}

QSize ColorBox::sizeHint() const {
    constexpr int Least = 60;
    return {qMax(Least, fontMetrics().horizontalAdvance(text()) + 2 * theme::Gap),
            theme::ControlHeight};
}

void ColorBox::paintEvent(QPaintEvent* /*event*/) {
    const QColor color = ToQColor(color_);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(hasFocus() ? QPen(theme::Accent, 2) : QPen(theme::Border));
    painter.setBrush(color);
    painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), theme::Radius, theme::Radius);
    constexpr int HalfGrey = 128;
    painter.setPen(qGray(color.rgb()) < HalfGrey ? theme::TitleText : theme::Text);
    painter.drawText(rect(), Qt::AlignCenter, text());
}

} // namespace tavmoor
