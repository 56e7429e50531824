#pragma once

#include <QPoint>
#include <QRect>

namespace tavmoor {

/// The place nearest to the window's own where all of it is on the screen; of a window larger than
/// the screen, its upper left corner.
QPoint KeepOnScreen(const QRect& window, const QRect& screen);

} // namespace tavmoor
