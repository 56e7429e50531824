#pragma once

#include "services/window_registry.h"

namespace tavmoor {

/// Everything before the event loop: the build folder, the program settings, and the first window,
/// which is the program splash when the settings ask for it, else the main window.
/// @throws RuntimeError when the system does not tell the program's own folder
void StartProgram(ProgramContext context);

} // namespace tavmoor
