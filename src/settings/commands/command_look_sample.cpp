#include "settings/commands/command_look_sample.h"

#include "services/controls/labels.h"
#include "services/look/theme.h"
#include "services/values/font_spec.h"
#include "services/values/twips.h"

#include <QEvent>
#include <QPainter>

namespace tavmoor {

namespace {

constexpr int BottomLine = PixelsOf(3240);

} // namespace

CommandLookSample::CommandLookSample(QWidget* parent)
    : QWidget(parent), sample_(MakeLabel("Label11", u" Sample ", this)) {
    sample_->setProperty("look", QStringLiteral("sample"));
    setFixedHeight(BottomLine + theme::Gap);
}

void CommandLookSample::SetEffects(const FontSpec& font) {
    QFont shown = sample_->font();
    shown.setBold(font.bold);
    shown.setItalic(font.italic);
    shown.setUnderline(font.underline);
    sample_->setFont(shown);
}

FontSpec CommandLookSample::Effects() const {
    const QFont& shown = sample_->font();
    return {{}, {}, shown.bold(), shown.italic(), shown.underline()};
}

bool CommandLookSample::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest) {
        Place(); // the sample has another size
    }
    return handled;
}

void CommandLookSample::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme::Border);
    painter.setBrush(theme::Surface);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), theme::Radius,
                            theme::Radius);
}

void CommandLookSample::resizeEvent(QResizeEvent* /*event*/) {
    Place();
}

void CommandLookSample::Place() {
    sample_->resize(sample_->sizeHint());
    sample_->move(qMax(0, (width() - sample_->width()) / 2), BottomLine - sample_->height());
}

} // namespace tavmoor
