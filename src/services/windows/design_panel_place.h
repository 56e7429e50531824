#pragma once

#include "services/windows/window_name.h"

#include <QPoint>
#include <QRect>

#include <optional>

class QWidget;

namespace tavmoor {

class WindowRegistry;

/// Where a window goes so that it does not lie under the open design panel: to the middle of the
/// screen when both together are wider than it, otherwise beside the panel, on the side that has
/// more room. All in logical pixels of one screen.
/// @return nothing when the window may stay where it is
std::optional<QPoint> PlaceBesidePanel(const QRect& window, const QRect& panel,
                                       const QRect& screen);

/// Moves a window that became the active one out from under the design panel `Form17`, when that is
/// open. The panel itself and the canvas `Form16` stay where they are.
void KeepOutFromUnderDesignPanel(QWidget& window, WindowName name, const WindowRegistry& windows);

} // namespace tavmoor
