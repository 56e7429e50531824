#include "core/files/durable_file.h"

#include "core/files/native_file.h"

#include <string>
#include <windows.h>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

std::error_code FillAndFlush(HANDLE file, std::string_view bytes) {
    if (const std::error_code error = WriteAll(reinterpret_cast<NativeFile>(file), bytes)) {
        return error;
    }
    return FlushFileBuffers(file) != 0 ? std::error_code() : LastNativeError();
}

} // namespace

std::error_code ReplaceFileDurably(const fs::path& target, std::string_view bytes) {
    const std::wstring fresh = target.wstring() + L"." + std::to_wstring(GetCurrentProcessId()) +
                               L"-" + std::to_wstring(GetTickCount64()) + L".tmp";
    HANDLE file = CreateFileW(fresh.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return LastNativeError();
    }
    std::error_code error = FillAndFlush(file, bytes);
    CloseHandle(file);
    if (!error && MoveFileExW(fresh.c_str(), target.c_str(),
                              MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0) {
        error = LastNativeError();
    }
    if (error) {
        DeleteFileW(fresh.c_str());
    }
    return error;
}

} // namespace tavmoor
