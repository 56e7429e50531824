#include "core/build_folder_platform.h"

namespace tavmoor {

void PlatformMakePrivateFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directory(folder, error);
}

// The temporary folder lies in the user's own profile there, so that existence is all to ask for.
FolderOwner PlatformFolderOwner(const std::filesystem::path& folder) {
    std::error_code error;
    return std::filesystem::is_directory(folder, error) ? FolderOwner::User : FolderOwner::Missing;
}

} // namespace tavmoor
