#include "core/disk/file_identity.h"

#include <array>
#include <windows.h>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

fs::path FoldedPath(HANDLE file, const fs::path& path) {
    std::array<wchar_t, 32768> text{};
    const DWORD length = GetFinalPathNameByHandleW(
        file, text.data(), static_cast<DWORD>(text.size()), FILE_NAME_NORMALIZED);
    std::wstring folded = length > 0 && length < text.size() ? std::wstring(text.data(), length)
                                                             : fs::absolute(path).wstring();
    CharLowerBuffW(folded.data(), static_cast<DWORD>(folded.size()));
    return folded;
}

/// Folders can be opened with the flag for backups alone; no right is asked for, so that files in
/// use answer as well.
std::optional<FileIdentity> Identity(const fs::path& path, DWORD flags) {
    const HANDLE file =
        CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | flags, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    BY_HANDLE_FILE_INFORMATION told{};
    FileIdentity identity;
    if (GetFileInformationByHandle(file, &told) != 0) {
        identity.volume = told.dwVolumeSerialNumber;
        identity.number =
            static_cast<std::uint64_t>(told.nFileIndexHigh) << 32U | told.nFileIndexLow;
    }
    if (identity.number == 0) {
        identity.path = FoldedPath(file, path);
    }
    CloseHandle(file);
    return identity;
}

} // namespace

std::optional<FileIdentity> IdentityOf(const fs::path& path) {
    return Identity(path, 0);
}

std::optional<FileIdentity> IdentityOfEntry(const fs::path& path) {
    return Identity(path, FILE_FLAG_OPEN_REPARSE_POINT);
}

} // namespace tavmoor
