#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace tavmoor {

/// Writes `bytes` to a fresh file beside `target`, flushes it to the disk and renames it over
/// `target`, with the platform's own calls. A link at `target` is followed, so that it stays a
/// link, and the file keeps its permissions. When a step fails, the fresh file is deleted and
/// `target` is as it was.
std::error_code ReplaceFileDurably(const std::filesystem::path& target, std::string_view bytes);

} // namespace tavmoor
