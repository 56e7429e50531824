#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tavmoor {

/// NativePath for a path without NUL.
std::filesystem::path PlatformNativePath(std::string_view documentPath);

/// A native path as UTF-8.
/// @throws RuntimeError 52 for one that cannot be said in UTF-8
std::string PlatformPathText(const std::filesystem::path& nativePath);

/// The drive that stands for the root of a system without drives; "" on one that has drives.
std::string_view PlatformRootDrive();

/// True when two UTF-8 texts are equal but for case.
bool PlatformEqualWithoutCase(std::string_view a, std::string_view b);

} // namespace tavmoor
