#include "services/windows/window_placing.h"

#include <algorithm>

namespace tavmoor {

std::optional<QPoint> PlaceBesidePanel(const QRect& window, const QRect& panel,
                                       const QRect& screen) {
    if (!window.intersects(panel)) {
        return std::nullopt;
    }
    if (window.width() + panel.width() > screen.width()) {
        return QPoint(screen.center().x() - window.width() / 2, window.top());
    }
    const int roomLeft = panel.left() - screen.left();
    const int roomRight = screen.right() - panel.right();
    const int left = roomLeft >= roomRight ? panel.left() - window.width() : panel.right() + 1;
    return QPoint(qBound(screen.left(), left, screen.right() + 1 - window.width()), window.top());
}

QPoint KeepOnScreen(const QRect& window, const QRect& screen) {
    const int right = screen.right() - window.width() + 1;
    const int bottom = screen.bottom() - window.height() + 1;
    return {std::max(screen.left(), std::min(window.left(), right)),
            std::max(screen.top(), std::min(window.top(), bottom))};
}

} // namespace tavmoor
