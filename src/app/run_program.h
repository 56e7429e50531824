#pragma once

#include <functional>
#include <string>

namespace tavmoor {

class ProgramApplication;

/// One run of the program: the start, the event loop until the main window unloads, and the end, in
/// which the marker of the run goes.
/// @param programFolder the folder in which the program and its content lie; see ProgramFolder
/// @return the exit code; a start that fails is told in a message box
int RunProgram(ProgramApplication& application, const std::function<std::string()>& programFolder);

} // namespace tavmoor
