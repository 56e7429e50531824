#include "core/files/build_folder_platform.h"

#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace tavmoor {

std::filesystem::path PlatformTemporaryFolder() {
    const char* folder = std::getenv("TMPDIR");
    return folder != nullptr && *folder != '\0' ? folder : "/tmp";
}

void PlatformMakePrivateFolder(const std::filesystem::path& folder) {
    mkdir(folder.c_str(), 0700);
}

FolderOwner PlatformFolderOwner(const std::filesystem::path& folder) {
    struct stat entry {};
    std::string path = folder.native();
    while (path.size() > 1 && path.back() == '/') {
        path.pop_back(); // with the slash, a link would be followed
    }
    if (lstat(path.c_str(), &entry) != 0) {
        return FolderOwner::Missing;
    }
    const bool own = S_ISDIR(entry.st_mode) && entry.st_uid == geteuid();
    // A group is often the user's own, and then new folders can be written by it.
    const bool shared = (entry.st_mode & S_IWOTH) != 0;
    return own && !shared ? FolderOwner::User : FolderOwner::Other;
}

} // namespace tavmoor
