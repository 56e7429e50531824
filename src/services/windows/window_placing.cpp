#include "services/windows/window_placing.h"

#include <algorithm>

namespace tavmoor {

QPoint KeepOnScreen(const QRect& window, const QRect& screen) {
    const int right = screen.right() - window.width() + 1;
    const int bottom = screen.bottom() - window.height() + 1;
    return {std::max(screen.left(), std::min(window.left(), right)),
            std::max(screen.top(), std::min(window.top(), bottom))};
}

} // namespace tavmoor
