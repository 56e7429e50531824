#include "core/files/build_folder_platform.h"

#include <array>
#include <windows.h>

namespace tavmoor {

std::filesystem::path PlatformTemporaryFolder() {
    std::array<wchar_t, MAX_PATH + 1> path{};
    const DWORD length = GetTempPathW(static_cast<DWORD>(path.size()), path.data());
    return std::wstring(path.data(), length <= path.size() ? length : 0);
}

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
