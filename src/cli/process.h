#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tavmoor::cli {

// What the system hands to this program, and what the program asks of it.

/// The arguments of the program in UTF-8, without the program itself.
std::vector<std::string> CommandLineArguments(int count, char** values);
/// A typed path, native or in document form, as a native path.
std::filesystem::path NativeArgument(const std::string& utf8);
/// Makes the terminal show UTF-8, and lets a write tell when the output is closed.
void PrepareConsole();
/// From here on an interrupt does not end the program; IsInterrupted tells of it, for commands with
/// something to clear up. Interrupts that were ignored at the start stay so.
void CatchInterrupts();
bool IsInterrupted();
/// True when standard output is a terminal that a line can be rewritten on.
bool OutputIsTerminal();
/// Starts a finished autorun and does not wait for it.
/// @throws CommandFailure when it cannot be started
void StartAutorunProgram(const std::filesystem::path& program);
/// Makes a fresh folder for working files that only the user can enter.
std::filesystem::path MakePrivateTemporaryFolder();

} // namespace tavmoor::cli
