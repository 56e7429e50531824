#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace tavmoor {

/// What the file system of a folder cannot do.
struct VolumeTraits {
    std::optional<std::uint64_t> largestFile; ///< bytes; nothing where no disc comes near the limit
    bool hasOwners = true;                    ///< false where every file belongs to everybody
};

/// Asked of an existing folder; one that cannot be asked has no limits.
VolumeTraits VolumeTraitsOf(const std::filesystem::path& folder);

/// Bytes that this user can still write there; nothing when the file system does not tell.
std::optional<std::uint64_t> FreeBytes(const std::filesystem::path& folder);

} // namespace tavmoor
