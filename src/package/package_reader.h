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

/// A package that cannot be read: no package at all, damaged or hostile; or an entry that cannot be
/// written out. The text says what is wrong, in plain ASCII, and names the entry.
class PackageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One file of a package.
struct PackageEntry {
    std::string name;         ///< as the head has it, code page bytes below 128
    std::uint64_t offset = 0; ///< of its first byte in the package
    std::uint64_t size = 0;   ///< bytes
};

/// The head of a package, read from its first bytes. The entries lie back to back and fill the
/// package: bytes behind the last one are damage, but for the rest of a line end that stands there
/// when all files together have fewer than two bytes.
/// @param head the beginning of the package; longer than the head, or the whole package
/// @param packageSize length of the whole package in bytes
/// @throws PackageError when the head is damaged, unfinished, longer than 1 MB or has more than
///         4096 files, or when the files' sizes do not add up to the package
std::vector<PackageEntry> ReadPackageHead(std::string_view head, std::uint64_t packageSize);

/// True for a name that may be written into a folder, on every system the same: not empty, no
/// separator, drive or wildcard, no control character, no blank or dot at its end (so neither "."
/// nor ".."), and no name that Windows takes for a device, such as "nul.txt".
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
    /// @throws PackageError when they cannot be read or do not fit
    [[nodiscard]] std::string Read(const PackageEntry& entry);

    /// Hands the bytes of an entry over, in order and block by block; no call for an empty entry.
    /// @throws PackageError when they cannot be read
    void ReadBlocks(const PackageEntry& entry,
                    const std::function<void(std::span<const char>)>& take);

    /// Writes every entry as a file of its name into a folder, which is made when it is missing.
    /// All names are checked before the first file is written, so that nothing lands outside the
    /// folder. The files are written into a fresh folder inside it and moved to their places only
    /// once all of them are whole: a failure before leaves the folder as it was, and a link that
    /// lies at a file's place is replaced, not followed.
    /// @throws PackageError for an unsafe name, two entries of one name (without regard to case),
    ///         or a file that cannot be written
    void ExtractTo(const std::filesystem::path& folder);

private:
    void WriteEntry(const PackageEntry& entry, const std::filesystem::path& target);

    std::ifstream file_;
    std::vector<PackageEntry> entries_;
};

} // namespace tavmoor
