#pragma once

#include <QScrollBar>

namespace tavmoor {

/// A vertical scroll bar that spins a number: its upper arrow, the Up key and the wheel turned away
/// raise the value, which is 0 at the lower end.
class SpinBar final : public QScrollBar {
    Q_OBJECT

public:
    /// @param most the value at the upper end
    SpinBar(const char* objectName, int most, int page, QWidget* parent = nullptr);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void TurnAround(int action);
};

} // namespace tavmoor
