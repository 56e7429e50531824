#pragma once

#include <filesystem>

namespace tavmoor {

// Places that the system names, in native form.

/// The running executable.
/// @throws RuntimeError when the system does not tell it
std::filesystem::path ProgramFile();

/// True when files can be made in the folder.
bool CanWriteFolder(const std::filesystem::path& folder);

/// Where programs keep the user's settings.
std::filesystem::path UserConfigurationFolder();

/// Where programs keep the user's data.
std::filesystem::path UserDataFolder();

} // namespace tavmoor
