#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tavmoor {

/// A package that cannot be read: no package at all, damaged or hostile. The text says what is
/// wrong, in plain ASCII.
class PackageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One file of a package.
struct PackageEntry {
    std::string name;          ///< as the head has it, code page bytes below 128
    std::uint64_t offset = 0;  ///< of its first byte in the package
    std::uint64_t size = 0;    ///< bytes
};

/// The head of a package, read from its first bytes.
/// @param head the beginning of the package; longer than the head, or the whole package
/// @param packageSize length of the whole package in bytes
/// @throws PackageError when the head is damaged or unfinished, or a size lies beyond the package
std::vector<PackageEntry> ReadPackageHead(std::string_view head, std::uint64_t packageSize);

/// True for a name that may be written into a folder: not empty, no separator, no drive, not "."
/// or "..", no control character.
bool IsSafeEntryName(std::string_view name);

/// An open package. Used by the command-line tool and by the autorun program, so paths are native.
class PackageFile {
public:
    /// @throws PackageError when the file cannot be opened or is no sound package
    explicit PackageFile(const std::filesystem::path& path);

    [[nodiscard]] const std::vector<PackageEntry>& Entries() const noexcept { return entries_; }

    /// The first entry of that name, without regard to case; nullptr when there is none.
    [[nodiscard]] const PackageEntry* Find(std::string_view name) const;

    /// The bytes of an entry; meant for what fits in memory.
    /// @throws PackageError when they cannot be read
    [[nodiscard]] std::string Read(const PackageEntry& entry);

    /// Hands the bytes of an entry over, block by block.
    /// @throws PackageError when they cannot be read
    void ReadBlocks(const PackageEntry& entry,
                    const std::function<void(std::span<const char>)>& take);

    /// Writes every entry as a file of its name into a folder, which is made when it is missing.
    /// All names are checked before the first file is written, so that nothing lands outside the
    /// folder; a file of the folder is only replaced by one that was written whole.
    /// @throws PackageError for an unsafe name, two entries of one name, or a file that cannot be
    ///         written
    void ExtractTo(const std::filesystem::path& folder);

private:
    std::ifstream file_;
    std::vector<PackageEntry> entries_;
};

} // namespace tavmoor
