#pragma once

#include "menu/geometry.h"

#include <windows.h>

#include <functional>

namespace tavmoor {

/// Answers a window's WM_PAINT without flicker: `paint` draws the whole client area, of the given
/// size, in memory. Nothing is drawn in a window without client area.
void PaintBuffered(HWND window, const std::function<void(HDC, Extent)>& paint);

} // namespace tavmoor
