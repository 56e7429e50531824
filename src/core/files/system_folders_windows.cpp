#include "core/files/system_folders.h"

#include "core/files/runtime_error.h"

#include <array>
#include <string>
#include <windows.h>

#include <shlobj.h>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

fs::path ShellFolder(int folder) {
    std::array<wchar_t, MAX_PATH> path{};
    if (SHGetFolderPathW(nullptr, folder, nullptr, SHGFP_TYPE_CURRENT, path.data()) != S_OK) {
        throw RuntimeError(ErrorNumber::PathNotFound, "");
    }
    return path.data();
}

} // namespace

fs::path ProgramFile() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length == 0) {
            throw RuntimeError(ErrorNumber::PathNotFound, "");
        }
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

bool CanWriteFolder(const fs::path& folder) {
    // The access rights alone do not tell: only making a file does.
    const std::wstring probe =
        (folder / (L"tavmoor" + std::to_wstring(GetCurrentProcessId()) + L".tmp")).wstring();
    HANDLE file = CreateFileW(probe.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                              FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    CloseHandle(file);
    return true;
}

fs::path UserConfigurationFolder() {
    return ShellFolder(CSIDL_APPDATA);
}

fs::path UserDataFolder() {
    return ShellFolder(CSIDL_LOCAL_APPDATA);
}

} // namespace tavmoor
