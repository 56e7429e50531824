#include "services/controls/status_label.h"

#include <QAccessible>
#include <QPainter>
#include <QTextOption>
#include <QtMath>

namespace tavmoor {

StatusLabel::StatusLabel(const char* objectName, int lines, QWidget* parent)
    : QFrame(parent), lines_(lines) {
    setObjectName(QString::fromLatin1(objectName));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void StatusLabel::SetText(const QString& text) {
    text_ = text;
    setToolTip(text);
    setAccessibleName(text);
    QAccessibleEvent changed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
    update();
}

QSize StatusLabel::sizeHint() const {
    constexpr int UsualWidth = 400;
    const QMargins margins = contentsMargins();
    const int text = qCeil(lines_ * QFontMetricsF(font()).lineSpacing()) + lines_;
    return {UsualWidth, text + margins.top() + margins.bottom()};
}

void StatusLabel::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    QTextOption option(Qt::AlignLeft | Qt::AlignTop);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QString shown = text_;
    shown.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRectF(contentsRect()), shown, option);
}

} // namespace tavmoor
