#include "core/files/work_folder.h"

#include "core/files/build_folder.h"
#include "core/files/build_folder_platform.h"
#include "core/files/document_path.h"
#include "core/files/runtime_error.h"
#include "core/text/path_text.h"

#include <random>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view NameStart = "tavmoor-work-";
constexpr std::size_t NameDigits = 8;

std::string FreshName() {
    std::random_device random;
    std::string name(NameStart);
    for (std::size_t i = 0; i < NameDigits; ++i) {
        name += "0123456789abcdef"[random() % 16];
    }
    return name;
}

bool IsWorkName(const fs::path& path) {
    const std::u8string name = path.filename().u8string();
    return name.size() == NameStart.size() + NameDigits &&
           std::string(name.begin(), name.end()).starts_with(NameStart);
}

/// What cannot be deleted now may go another time.
void DeleteLeftFoldersIgnoringErrors(const fs::path& parent) {
    std::error_code error;
    fs::directory_iterator entries(parent, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        const fs::path& path = entries->path();
        if (IsWorkName(path) && PlatformFolderOwner(path) == FolderOwner::User &&
            FolderLock(path).Result() == FolderLock::State::Held) {
            std::error_code ignored;
            fs::remove_all(path, ignored);
        }
    }
}

/// @return the folder; "" when the name was taken
fs::path MakeFolder(const fs::path& parent) {
    fs::path path = parent / FreshName();
    std::error_code error;
    const bool made = fs::create_directory(path, error);
    if (error) {
        throw FileError(error, ShownPath(parent));
    }
    // A file system without rights for each user is no failure here.
    fs::permissions(path, fs::perms::owner_all, error);
    return made ? path : fs::path();
}

} // namespace

WorkFolder::WorkFolder(const std::string& parent) {
    RequireOwnFolder(parent);
    const fs::path folder = tavmoor::NativePath(parent);
    DeleteLeftFoldersIgnoringErrors(folder);
    std::error_code error;
    // Who clears up may take a folder for left before it is locked; then there is a next one.
    while (native_.empty() || !lock_ || !fs::exists(native_, error)) {
        native_ = MakeFolder(folder);
        if (!native_.empty()) {
            lock_ = std::make_unique<FolderLock>(native_);
        }
    }
    path_ = WithBackslash(DocumentPath(native_));
}

WorkFolder::~WorkFolder() {
    lock_.reset(); // on Windows its file lies in the folder
    std::error_code ignored;
    fs::remove_all(native_, ignored);
}

} // namespace tavmoor
