#include "core/disk/folder_lock.h"

#include <array>
#include <windows.h>

namespace tavmoor {

namespace {

constexpr const wchar_t* LockName = L".tavmoor-lock";

std::string ThisProcess() {
    std::array<wchar_t, 32768> path{};
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    const std::u8string name =
        std::filesystem::path(std::wstring(path.data(), length)).stem().u8string();
    return std::string(name.begin(), name.end()) + " (process " +
           std::to_string(GetCurrentProcessId()) + ")";
}

std::string ReadHolder(const std::filesystem::path& path) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    std::array<char, 512> text{};
    DWORD count = 0;
    if (file != INVALID_HANDLE_VALUE) {
        ReadFile(file, text.data(), static_cast<DWORD>(text.size()), &count, nullptr);
        CloseHandle(file);
    }
    return count > 0 ? std::string(text.data(), count) : "another program";
}

} // namespace

class FolderLock::Platform {
public:
    explicit Platform(HANDLE file) : file_(file) {}
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    ~Platform() { CloseHandle(file_); }

private:
    HANDLE file_;
};

FolderLock::FolderLock(const std::filesystem::path& folder) {
    const std::filesystem::path path = folder / LockName;
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS,
                    FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (file != INVALID_HANDLE_VALUE) {
        platform_ = std::make_unique<Platform>(file);
        const std::string self = ThisProcess();
        DWORD written = 0;
        WriteFile(file, self.data(), static_cast<DWORD>(self.size()), &written, nullptr);
        state_ = State::Held;
    } else if (GetLastError() == ERROR_SHARING_VIOLATION) {
        state_ = State::Taken;
        holder_ = ReadHolder(path);
    }
}

FolderLock::~FolderLock() = default;

} // namespace tavmoor
