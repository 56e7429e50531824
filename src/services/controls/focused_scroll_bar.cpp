#include "services/controls/focused_scroll_bar.h"

#include "services/look/theme.h"

#include <QPainter>

namespace tavmoor {

FocusedScrollBar::FocusedScrollBar(const char* objectName, int least, int most, int page,
                                   QWidget* parent)
    : QScrollBar(Qt::Horizontal, parent) {
    setObjectName(QString::fromLatin1(objectName));
    setRange(least, most);
    setPageStep(page);
    setFocusPolicy(Qt::StrongFocus);
    // Scroll bars by themselves move their content by the keys, the number the other way.
    setInvertedControls(false);
}

void FocusedScrollBar::paintEvent(QPaintEvent* event) {
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
