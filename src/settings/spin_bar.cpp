#include "settings/spin_bar.h"

#include "services/theme.h"

#include <QPainter>

namespace tavmoor {

SpinBar::SpinBar(const char* objectName, int most, int page, QWidget* parent)
    : QScrollBar(Qt::Vertical, parent) {
    setObjectName(QString::fromLatin1(objectName));
    setRange(0, most);
    setPageStep(page);
    setInvertedAppearance(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QAbstractSlider::actionTriggered, this, &SpinBar::TurnAround);
}

void SpinBar::TurnAround(int action) {
    // The appearance alone is turned: arrows, grooves and keys still count from the upper end.
    switch (action) {
    case SliderSingleStepAdd:
        setSliderPosition(value() - singleStep());
        break;
    case SliderSingleStepSub:
        setSliderPosition(value() + singleStep());
        break;
    case SliderPageStepAdd:
        setSliderPosition(value() - pageStep());
        break;
    case SliderPageStepSub:
        setSliderPosition(value() + pageStep());
        break;
    case SliderToMinimum:
        setSliderPosition(maximum());
        break;
    case SliderToMaximum:
        setSliderPosition(minimum());
        break;
    default:
        break; // dragged, to a place that is right already
    }
}

void SpinBar::wheelEvent(QWheelEvent* event) {
    setInvertedControls(false);
    QScrollBar::wheelEvent(event);
    setInvertedControls(true);
}

void SpinBar::paintEvent(QPaintEvent* event) {
    QScrollBar::paintEvent(event);
    QPainter painter(this);
    if (hasFocus()) {
        painter.setPen(QPen(theme::Accent, 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    } else {
        painter.setPen(theme::Border);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

} // namespace tavmoor
