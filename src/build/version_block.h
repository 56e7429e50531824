#pragma once

#include "build/version_resource.h"

#include <filesystem>
#include <optional>
#include <string>

namespace tavmoor {

/// The company name in the version block of this maker's autorun programs; the programs in the
/// templates carry it, and the build deletes older programs that do.
inline constexpr const char* MakerMarker = "Orlenta";

/// The "CompanyName" of a Windows program's version block, under the first translation that the
/// block names, as UTF-8; half a surrogate pair becomes U+FFFD. Nothing when the file is no such
/// program or has no such block, translation or name. Any bytes are survived: every offset and size
/// is checked, and less than two megabytes are read.
std::optional<std::string> ReadCompanyName(const ReadAt& read);

/// The same for a file; nothing when it cannot be read.
std::optional<std::string> ReadCompanyName(const std::filesystem::path& path);

} // namespace tavmoor
