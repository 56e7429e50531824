#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace tavmoor {

/// What tells one file or folder from every other, whatever path leads to it: links, `..`, doubled
/// separators and letter case make no difference. On file systems that number no files it is the
/// canonical path without regard to case.
struct FileIdentity {
    std::uint64_t volume = 0;
    std::uint64_t number = 0;
    std::filesystem::path path; ///< folded; only where the file system has no number

    bool operator==(const FileIdentity& other) const = default;
};

/// The identity of what a path leads to in the end; nothing when nothing lies there.
std::optional<FileIdentity> IdentityOf(const std::filesystem::path& path);

/// The same for the entry itself: of a link, not of what it leads to.
std::optional<FileIdentity> IdentityOfEntry(const std::filesystem::path& path);

} // namespace tavmoor
