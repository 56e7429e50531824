#pragma once

#include <QScrollBar>

namespace tavmoor {

/// A scroll bar that is a field for a number: the tab key reaches it, and it shows its focus.
class FocusedScrollBar : public QScrollBar {
    Q_OBJECT

public:
    FocusedScrollBar(const char* objectName, int least, int most, int page,
                     QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tavmoor
