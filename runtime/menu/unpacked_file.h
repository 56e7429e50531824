#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

namespace tavmoor {

/// A file of a package, laid into a folder of its own below the system's temporary one for players
/// that take nothing but files. Both are removed when this object ends.
class UnpackedFile {
public:
    /// Keeps the extension of the name and nothing else of it.
    /// @param stop asked between the blocks of a long file; true gives the work up
    /// @throws PackageError when the package or the file in it cannot be read
    /// @throws std::filesystem::filesystem_error when it cannot be written, or was given up
    UnpackedFile(const std::filesystem::path& package, std::string_view name,
                 const std::function<bool()>& stop);
    UnpackedFile(const UnpackedFile&) = delete;
    UnpackedFile& operator=(const UnpackedFile&) = delete;
    ~UnpackedFile();

    [[nodiscard]] const std::filesystem::path& Path() const noexcept { return path_; }

private:
    std::filesystem::path folder_;
    std::filesystem::path path_;
};

} // namespace tavmoor
