#pragma once

#include <filesystem>
#include <string>

namespace tavmoor {

/// The folder of the running executable in document form, without a backslash at its end.
/// @throws RuntimeError when the system does not tell it, or the document cannot say it
std::string ProgramFolder();

/// The path of `tavmoor.ini`: in the program's folder, or, where that cannot be written, in the
/// user's configuration folder. When the document cannot say that one, the write at the end fails.
std::string ProgramSettingsPath(const std::string& programFolder);

/// The user's folder for this program's settings, in native form.
std::filesystem::path ProgramConfigurationFolder();

/// The user's folder for this program's data (recovered projects), in native form.
std::filesystem::path ProgramDataFolder();

} // namespace tavmoor
