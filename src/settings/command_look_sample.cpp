#include "settings/command_look_sample.h"

#include "services/color_value.h"
#include "services/theme.h"
#include "services/twips.h"

#include <QLabel>
#include <QPainter>

namespace tavmoor {

namespace {

constexpr int BottomLine = PixelsOf(3240);

} // namespace

CommandLookSample::CommandLookSample(QWidget* parent)
    : QWidget(parent), sample_(new QLabel(QStringLiteral(" Sample "), this)) {
    sample_->setObjectName(QStringLiteral("Label11"));
    setFixedHeight(BottomLine + theme::Gap);
}

void CommandLookSample::SetLook(const CommandButtonLook& look) {
    look_ = look;
    // The font comes last: the program's style sheet takes its own back when the label gets one.
    sample_->setStyleSheet(
        QStringLiteral("color: %1; background-color: %2; border: 1px solid %3; padding: 4px 12px;")
            .arg(ToQColor(look.textColor).name(), ToQColor(look.backColor).name(),
                 theme::Border.name()));
    sample_->setFont(ToQFont(look.font));
    Place();
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
