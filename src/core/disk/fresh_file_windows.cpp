#include "core/disk/fresh_file.h"

#include "core/disk/native_file.h"

#include <aclapi.h>
#include <algorithm>
#include <string>
#include <windows.h>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

constexpr std::wstring_view NameStart = L".tavmoor-";
constexpr std::size_t NameDigits = 16;

std::error_code ErrorOf(DWORD number) {
    return {static_cast<int>(number), std::system_category()};
}

/// A name that no other process and no earlier call gives.
std::wstring FreshName() {
    static DWORD count = 0;
    std::wstring digits;
    std::uint64_t number = static_cast<std::uint64_t>(GetCurrentProcessId()) << 32U |
                           (static_cast<std::uint32_t>(GetTickCount64()) + ++count);
    for (std::size_t i = 0; i < NameDigits; ++i, number >>= 4U) {
        digits += L"0123456789abcdef"[number & 15U];
    }
    return std::wstring(NameStart) + digits;
}

/// Others may read the file and delete it by its name, which is what renaming it is.
HANDLE OpenFresh(const fs::path& path, DWORD how) {
    return CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE | WRITE_DAC,
                       FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, how, FILE_ATTRIBUTE_NORMAL,
                       nullptr);
}

/// What came from a CD is read-only, and could then neither be replaced nor deleted.
void MakeWritableIgnoringErrors(const fs::path& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        SetFileAttributesW(path.c_str(), attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
    }
}

} // namespace

class FreshFile::Platform {
public:
    Platform(HANDLE file, fs::path path) : file_(file), path_(std::move(path)) {}
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    ~Platform() {
        Close();
        if (!path_.empty()) {
            DeleteFileW(path_.c_str());
        }
    }

    [[nodiscard]] HANDLE File() const { return file_; }
    [[nodiscard]] const fs::path& Path() const { return path_; }
    void Placed() { path_.clear(); }
    void Close() {
        if (file_ != INVALID_HANDLE_VALUE) {
            CloseHandle(file_);
            file_ = INVALID_HANDLE_VALUE;
        }
    }
    std::error_code Reopen() {
        Close();
        file_ = OpenFresh(path_, OPEN_EXISTING);
        return file_ == INVALID_HANDLE_VALUE ? LastNativeError() : std::error_code();
    }

private:
    HANDLE file_;
    fs::path path_; ///< "" once the file stands at its target
};

FreshFile::FreshFile() = default;
FreshFile::FreshFile(FreshFile&&) noexcept = default;
FreshFile::~FreshFile() = default;

const fs::path& FreshFile::Path() const {
    return platform_->Path();
}

std::error_code FreshFile::Create(const fs::path& folder, std::uint64_t /*expectedSize*/) {
    // Space asked for in advance would have to be filled with zeros first.
    const fs::path path = folder / FreshName();
    const HANDLE file = OpenFresh(path, CREATE_NEW);
    if (file == INVALID_HANDLE_VALUE) {
        return LastNativeError();
    }
    platform_ = std::make_unique<Platform>(file, path);
    return {};
}

std::error_code FreshFile::Append(std::string_view bytes) {
    return WriteAll(reinterpret_cast<NativeFile>(platform_->File()), bytes);
}

std::error_code FreshFile::TakeOver(const fs::path& finished) {
    platform_->Close();
    if (MoveFileExW(finished.c_str(), platform_->Path().c_str(), MOVEFILE_REPLACE_EXISTING) == 0) {
        return LastNativeError();
    }
    return platform_->Reopen();
}

std::error_code FreshFile::TakeUsualRights() {
    // A file that was moved here brought the access list of its old folder: with an empty list of
    // its own it inherits from the folder in which it lies.
    ACL none{};
    if (InitializeAcl(&none, sizeof(none), ACL_REVISION) == 0) {
        return LastNativeError();
    }
    std::wstring path = platform_->Path().wstring();
    return ErrorOf(
        SetNamedSecurityInfoW(path.data(), SE_FILE_OBJECT,
                              DACL_SECURITY_INFORMATION | UNPROTECTED_DACL_SECURITY_INFORMATION,
                              nullptr, nullptr, &none, nullptr));
}

std::error_code FreshFile::TakeRightsOf(const fs::path& old) {
    std::wstring from = old.wstring();
    PACL list = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (GetNamedSecurityInfoW(from.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                              nullptr, &list, nullptr, &descriptor) != ERROR_SUCCESS) {
        return {}; // nothing lies there, or it keeps its list to itself
    }
    std::wstring path = platform_->Path().wstring();
    const DWORD result = SetNamedSecurityInfoW(
        path.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, list, nullptr);
    LocalFree(descriptor);
    return ErrorOf(result);
}

std::error_code FreshFile::Flush() {
    return FlushFileBuffers(platform_->File()) != 0 ? std::error_code() : LastNativeError();
}

std::error_code FreshFile::PlaceAt(const fs::path& target) {
    platform_->Close();
    MakeWritableIgnoringErrors(target);
    if (MoveFileExW(platform_->Path().c_str(), target.c_str(),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0) {
        return LastNativeError();
    }
    platform_->Placed();
    return {};
}

void DeleteLeftFreshFilesIgnoringErrors(const fs::path& folder) {
    std::error_code error;
    fs::directory_iterator entries(folder, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        const std::wstring name = entries->path().filename().wstring();
        if (name.starts_with(NameStart) && name.size() == NameStart.size() + NameDigits) {
            // Without any sharing it opens only when nobody holds it, and goes with the handle.
            const HANDLE file =
                CreateFileW(entries->path().c_str(), DELETE, 0, nullptr, OPEN_EXISTING,
                            FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
            if (file != INVALID_HANDLE_VALUE) {
                CloseHandle(file);
            }
        }
    }
}

// Windows writes the names with the rename itself.
void FlushFolderIgnoringErrors(const fs::path& /*folder*/) {}

std::error_code TryToReplace(const fs::path& path) {
    const HANDLE file = CreateFileW(path.c_str(), DELETE | FILE_WRITE_DATA, 0, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (file != INVALID_HANDLE_VALUE) {
        CloseHandle(file);
        return {};
    }
    const bool inUse = GetLastError() == ERROR_SHARING_VIOLATION;
    return inUse ? std::make_error_code(std::errc::text_file_busy) : std::error_code();
}

} // namespace tavmoor
