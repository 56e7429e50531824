#pragma once

#include <filesystem>
#include <system_error>

namespace tavmoor {

/// Copies a file over another one, or to a place where none lies, with the platform's own means.
std::error_code CopyNativeFile(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace tavmoor
