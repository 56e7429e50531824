#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

namespace tavmoor {

/// A file that is written under a name of its own in the folder of its target and renamed over it
/// once it is whole, so that no reader and no crash ever meets half of it. It is created new, never
/// through a link. While the object lives the file is held; one that was not placed goes with it.
/// What a killed process leaves is recognised by its name and by nobody holding it.
///
/// Used for saves and for what a build places on the disc.
class FreshFile {
public:
    FreshFile();
    FreshFile(FreshFile&&) noexcept;
    FreshFile& operator=(FreshFile&&) = delete;
    FreshFile(const FreshFile&) = delete;
    FreshFile& operator=(const FreshFile&) = delete;
    ~FreshFile();

    /// Makes the file, for this user alone at first.
    /// @param expectedSize bytes that will come; a disk known to be too full fails here
    std::error_code Create(const std::filesystem::path& folder, std::uint64_t expectedSize = 0);
    std::error_code Append(std::string_view bytes);
    /// Puts a finished file of the same file system in its stead. That file is gone then; on an
    /// error it stays where it was.
    std::error_code TakeOver(const std::filesystem::path& finished);

    /// The rights that any new file in the folder has.
    std::error_code TakeUsualRights();
    /// The rights of a file that is to be replaced, its owner and group as far as the system lets
    /// this user give them.
    std::error_code TakeRightsOf(const std::filesystem::path& old);

    /// Writes what is in memory to the disk itself.
    std::error_code Flush();
    /// Renames the file over what lies at `target`, a link included.
    std::error_code PlaceAt(const std::filesystem::path& target);

    [[nodiscard]] const std::filesystem::path& Path() const;

private:
    class Platform; // one file per platform

    std::unique_ptr<Platform> platform_;
};

/// Deletes the fresh files in a folder that this user's killed processes left: those that nobody
/// holds. Failures are no news; the next one who writes there tries again.
void DeleteLeftFreshFilesIgnoringErrors(const std::filesystem::path& folder);

/// Writes the folder's list of names to the disk. Some file systems cannot; the files are whole all
/// the same.
void FlushFolderIgnoringErrors(const std::filesystem::path& folder);

/// True when the file at `path` can be replaced or deleted: nothing runs it, and on Windows nothing
/// has it open. What lies there stays as it is. A link answers for itself.
/// @return text_file_busy when it is in use; nothing when nothing lies there
std::error_code TryToReplace(const std::filesystem::path& path);

} // namespace tavmoor
