#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>

namespace tavmoor {

/// The company name in the version block of this maker's autorun programs; the programs in the
/// templates carry it, and the build deletes older programs that do.
inline constexpr const char* MakerMarker = "Orlenta";

/// Fills the buffer from an offset of a file; false when the file has not that many bytes there.
using ReadAt = std::function<bool(std::uint64_t offset, std::span<unsigned char> buffer)>;

/// The "CompanyName" of a Windows program's version block, under the first translation that the
/// block names, as UTF-8. Nothing when the file is no such program or has no such block. Any bytes
/// are survived: every offset and size is checked, and no more than a few megabytes are read.
std::optional<std::string> ReadCompanyName(const ReadAt& read);

/// The same for a file; nothing when it cannot be read.
std::optional<std::string> ReadCompanyName(const std::filesystem::path& path);

} // namespace tavmoor
