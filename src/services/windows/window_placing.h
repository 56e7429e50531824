#pragma once

#include <QPoint>
#include <QRect>

#include <optional>

namespace tavmoor {

/// Where a window goes so that it does not lie under the open design panel: to the middle of the
/// screen when both together are wider than it, otherwise beside the panel, on the side that has
/// more room. All in logical pixels of one screen.
/// @return nothing when the window may stay where it is
std::optional<QPoint> PlaceBesidePanel(const QRect& window, const QRect& panel,
                                       const QRect& screen);

/// The place nearest to the window's own where all of it is on the screen; of a window larger than
/// the screen, its upper left corner.
QPoint KeepOnScreen(const QRect& window, const QRect& screen);

} // namespace tavmoor
