#pragma once

#include "services/windows/window_registry.h"

#include <functional>
#include <string>

namespace tavmoor {

class RunMarker;

/// Everything before the event loop: the build folder, the program settings, and the first window,
/// which is the program splash when the settings ask for it, else the main window.
/// @param marker tells whether a project of an earlier run is to be offered
/// @param programFolder as ProgramFolder does, whose errors go on to the caller
void StartProgram(ProgramContext context, const RunMarker& marker,
                  const std::function<std::string()>& programFolder);

} // namespace tavmoor
