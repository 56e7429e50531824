#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace tavmoor {

/// Writes `bytes` to a fresh file beside `target`, flushes it to the disk and renames it over
/// `target`. A link at `target` is followed, so that it stays a link; owner, group and rights of
/// the old file are kept as far as the system allows. A target that is write-protected, or no
/// regular file, is refused. When a step fails, `target` is as it was.
std::error_code ReplaceFileDurably(const std::filesystem::path& target, std::string_view bytes);

} // namespace tavmoor
