#include "services/controls/spin_bar.h"

namespace tavmoor {

SpinBar::SpinBar(const char* objectName, int most, int page, QWidget* parent)
    : FocusedScrollBar(objectName, 0, most, page, parent) {
    setOrientation(Qt::Vertical);
    setInvertedAppearance(true);
    setInvertedControls(true);
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

} // namespace tavmoor
