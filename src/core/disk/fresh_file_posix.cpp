#include "core/disk/fresh_file.h"

#include "core/disk/native_file.h"

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view NamePattern = ".tavmoor-XXXXXX";

/// True when the name still leads to the open file: who clears up may have been faster than the
/// lock.
bool IsStillThere(int file) {
    struct stat entry {};
    return fstat(file, &entry) != 0 || entry.st_nlink > 0;
}

bool IsFreshName(const std::string& name) {
    return name.size() == NamePattern.size() && name.starts_with(".tavmoor-");
}

} // namespace

class FreshFile::Platform {
public:
    Platform(int file, fs::path path) : file_(file), path_(std::move(path)) {}
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    ~Platform() {
        if (!path_.empty()) {
            unlink(path_.c_str());
        }
        close(file_);
    }

    [[nodiscard]] int File() const { return file_; }
    [[nodiscard]] const fs::path& Path() const { return path_; }
    void Placed() { path_.clear(); }
    /// The name leads to another file now.
    std::error_code Reopen() {
        const int file = open(path_.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
        if (file < 0) {
            return LastNativeError();
        }
        flock(file, LOCK_EX | LOCK_NB); // a file system without locks has no one who asks
        close(file_);
        file_ = file;
        return {};
    }

private:
    int file_;
    fs::path path_; ///< "" once the file stands at its target
};

FreshFile::FreshFile() = default;
FreshFile::FreshFile(FreshFile&&) noexcept = default;
FreshFile::~FreshFile() = default;

const fs::path& FreshFile::Path() const {
    return platform_->Path();
}

std::error_code FreshFile::Create(const fs::path& folder, std::uint64_t expectedSize) {
    int file = -1;
    std::string path;
    do {
        if (file >= 0) {
            close(file);
        }
        // Not made from the target's name, which may be as long as names can be.
        path = (folder / NamePattern).string();
        file = mkostemp(path.data(), O_CLOEXEC);
        if (file < 0) {
            return LastNativeError();
        }
        flock(file, LOCK_EX | LOCK_NB);
    } while (!IsStillThere(file));
    platform_ = std::make_unique<Platform>(file, path);
#ifdef __linux__
    // Not every file system can; only "disk full" says something about the writes to come.
    if (expectedSize > 0 && fallocate(file, 0, 0, static_cast<off_t>(expectedSize)) != 0 &&
        errno == ENOSPC) {
        return LastNativeError();
    }
#endif
    return {};
}

std::error_code FreshFile::Append(std::string_view bytes) {
    return WriteAll(platform_->File(), bytes);
}

std::error_code FreshFile::TakeOver(const fs::path& finished) {
    if (rename(finished.c_str(), platform_->Path().c_str()) != 0) {
        return LastNativeError();
    }
    return platform_->Reopen();
}

std::error_code FreshFile::TakeUsualRights() {
    const mode_t mask = umask(0);
    umask(mask);
    return fchmod(platform_->File(), 0666U & ~mask) == 0 ? std::error_code() : LastNativeError();
}

std::error_code FreshFile::TakeRightsOf(const fs::path& old) {
    struct stat entry {};
    if (stat(old.c_str(), &entry) != 0) {
        return TakeUsualRights();
    }
    // Only root gives files away; each half is tried, since a group of one's own can be given.
    if (fchown(platform_->File(), entry.st_uid, entry.st_gid) != 0 &&
        fchown(platform_->File(), static_cast<uid_t>(-1), entry.st_gid) != 0) {
        errno = 0;
    }
    return fchmod(platform_->File(), entry.st_mode & 07777U) == 0 ? std::error_code()
                                                                  : LastNativeError();
}

std::error_code FreshFile::Flush() {
    return fsync(platform_->File()) == 0 ? std::error_code() : LastNativeError();
}

std::error_code FreshFile::PlaceAt(const fs::path& target) {
    if (rename(platform_->Path().c_str(), target.c_str()) != 0) {
        return LastNativeError();
    }
    platform_->Placed();
    return {};
}

void DeleteLeftFreshFilesIgnoringErrors(const fs::path& folder) {
    std::error_code error;
    fs::directory_iterator entries(folder, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        if (!IsFreshName(entries->path().filename().string())) {
            continue;
        }
        const int file =
            open(entries->path().c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
        struct stat entry {};
        if (file >= 0 && fstat(file, &entry) == 0 && S_ISREG(entry.st_mode) &&
            entry.st_uid == geteuid() && flock(file, LOCK_EX | LOCK_NB) == 0) {
            unlink(entries->path().c_str());
        }
        if (file >= 0) {
            close(file);
        }
    }
}

void FlushFolderIgnoringErrors(const fs::path& folder) {
    const int handle =
        open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle >= 0) {
        fsync(handle);
        close(handle);
    }
}

std::error_code TryToReplace(const fs::path& path) {
    struct stat entry {};
    if (lstat(path.c_str(), &entry) != 0 || !S_ISREG(entry.st_mode)) {
        return {};
    }
    const int file = open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (file >= 0) {
        close(file);
        return {};
    }
    // A file that this user may not write can still be replaced: that is the folder's to allow.
    return errno == ETXTBSY ? LastNativeError() : std::error_code();
}

} // namespace tavmoor
