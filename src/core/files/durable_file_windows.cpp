#include "core/files/durable_file.h"

#include <algorithm>
#include <string>
#include <windows.h>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

std::error_code LastError() {
    return {static_cast<int>(GetLastError()), std::system_category()};
}

std::error_code WriteAll(HANDLE file, std::string_view bytes) {
    constexpr std::size_t block = 1U << 20U;
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto count = static_cast<DWORD>(std::min(bytes.size(), block));
        if (WriteFile(file, bytes.data(), count, &written, nullptr) == 0) {
            return LastError();
        }
        bytes.remove_prefix(written);
    }
    return FlushFileBuffers(file) != 0 ? std::error_code() : LastError();
}

} // namespace

std::error_code ReplaceFileDurably(const fs::path& target, std::string_view bytes) {
    const std::wstring fresh = target.wstring() + L"." + std::to_wstring(GetCurrentProcessId()) +
                               L"-" + std::to_wstring(GetTickCount64()) + L".tmp";
    HANDLE file = CreateFileW(fresh.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return LastError();
    }
    std::error_code error = WriteAll(file, bytes);
    CloseHandle(file);
    if (!error && MoveFileExW(fresh.c_str(), target.c_str(),
                              MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0) {
        error = LastError();
    }
    if (error) {
        DeleteFileW(fresh.c_str());
    }
    return error;
}

} // namespace tavmoor
