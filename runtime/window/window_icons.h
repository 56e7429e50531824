#pragma once

#include "menu/autorun_disc.h"

#include <windows.h>

namespace tavmoor {

/// Resource number of the program's own icon.
inline constexpr int ProgramIcon = 1;

/// Gives a window the disc's icon, or the program's own where the disc has none.
void GiveIcons(HWND window, HINSTANCE instance, const AutorunDisc& disc);

} // namespace tavmoor
