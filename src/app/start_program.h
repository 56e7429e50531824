#pragma once

#include "services/windows/window_registry.h"

namespace tavmoor {

class RunMarker;

/// Everything before the event loop: the build folder, the program settings, and the first window,
/// which is the program splash when the settings ask for it, else the main window.
/// @param marker tells whether a project of an earlier run is to be offered
/// @throws RuntimeError when the system does not tell the program's own folder
void StartProgram(ProgramContext context, const RunMarker& marker);

} // namespace tavmoor
