#pragma once

#include <windows.h>

namespace tavmoor {

// Windows 7 knows one resolution for all screens, later systems one for each window. The newer
// calls are looked up at run time, so that one program serves all.

/// Sent when a window comes to a screen of another resolution; older headers lack it.
inline constexpr UINT DpiChangedMessage = 0x02E0;

/// Dots per inch of the screen that a window is on.
int DpiOf(HWND window);

/// The outer size of a window whose client area has the given size.
SIZE OuterSize(SIZE client, DWORD style, DWORD extendedStyle, int dpi);

} // namespace tavmoor
