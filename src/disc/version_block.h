#pragma once

#include "disc/version_resource.h"

#include <filesystem>
#include <optional>
#include <string>

namespace tavmoor {

/// The "CompanyName" of a Windows program's version block, under the first translation that the
/// block names, as UTF-8; half a surrogate pair becomes U+FFFD. Nothing when the file is no such
/// program or has no such block, translation or name. Any bytes are survived: every offset and size
/// is checked, and less than two megabytes are read.
std::optional<std::string> ReadCompanyName(const ReadAt& read);

/// The same for a file; nothing when it cannot be read.
std::optional<std::string> ReadCompanyName(const std::filesystem::path& path);

} // namespace tavmoor
