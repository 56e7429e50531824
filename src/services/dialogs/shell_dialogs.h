#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace tavmoor {

/// Dialogs of the system's own shell, which only Windows has.
enum class ShellDialog : std::uint8_t {
    Help,
    Format,
    ObjectProperties,
    Restart,
    Run,
    ShutDown,
    FindFiles
};

/// What a shell dialog is handed; each of them takes what it knows of it. Texts are Unicode.
struct ShellRequest {
    ShellDialog dialog = ShellDialog::Help;
    std::uintptr_t owner = 0; ///< window handle; 0 for none
    std::wstring title;
    std::wstring prompt;
    std::filesystem::path path; ///< native: help file, object, drive or folder
    std::uint32_t command = 0;  ///< of Help
    std::wstring key;           ///< of Help
    std::uint32_t flags = 0;
};

/// Shows a dialog of the system's shell. Some of them return before they are closed.
/// @return false when this system has no such dialog or refused to show it; nothing happened then
bool ShowShellDialog(const ShellRequest& request);

} // namespace tavmoor
