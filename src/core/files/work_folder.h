#pragma once

#include "core/disk/folder_lock.h"

#include <filesystem>
#include <memory>
#include <string>

namespace tavmoor {

/// A fresh folder for the working files of one process, inside a folder that is the user's choice.
/// It is held locked and goes with the object; nothing else in the parent is touched but such
/// folders of this user that killed processes left.
class WorkFolder {
public:
    /// @param parent document form, with or without a backslash at its end
    /// @throws RuntimeError 76 when the parent does not exist, 70 when it is a link, somebody
    ///         else's or open to everybody (where files have owners), and every file error
    explicit WorkFolder(const std::string& parent);
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;
    ~WorkFolder();

    /// Document form, with a backslash at its end.
    [[nodiscard]] const std::string& Path() const { return path_; }
    [[nodiscard]] const std::filesystem::path& NativePath() const { return native_; }

private:
    std::filesystem::path native_;
    std::string path_;
    std::unique_ptr<FolderLock> lock_;
};

} // namespace tavmoor
