#pragma once

#include "menu/geometry.h"

#include <windows.h>

namespace tavmoor {

/// A corner of the screen that the pointer is on; a window made there has that screen's resolution.
POINT CornerOfPointersScreen();

/// The part of a window's screen that the system leaves to windows, in pixels of all screens.
Box WorkArea(HWND window);

/// Gives a window an outer size, as far as it fits, in the middle of its screen.
void PlaceInMiddle(HWND window, Extent size);

} // namespace tavmoor
