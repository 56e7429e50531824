#pragma once

#include "services/controls/focused_scroll_bar.h"

namespace tavmoor {

/// A vertical scroll bar that spins a number: its upper arrow, the Up key and the wheel turned away
/// raise the value, which is 0 at the lower end.
class SpinBar final : public FocusedScrollBar {
    Q_OBJECT

public:
    /// @param most the value at the upper end
    SpinBar(const char* objectName, int most, int page, QWidget* parent = nullptr);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void TurnAround(int action);
};

} // namespace tavmoor
