#include "core/files/durable_file.h"

#include "core/files/native_file.h"

#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

mode_t ModeOf(const fs::path& target) {
    struct stat old {};
    if (stat(target.c_str(), &old) == 0) {
        return old.st_mode & 07777U;
    }
    const mode_t mask = umask(0);
    umask(mask);
    return 0666U & ~mask;
}

/// Where a link at the target leads in the end, also when nothing lies there yet.
fs::path FollowLinks(fs::path target) {
    constexpr int most = 40; // as the system itself follows
    std::error_code error;
    for (int i = 0; i < most && fs::is_symlink(fs::symlink_status(target, error)); ++i) {
        target = target.parent_path() / fs::read_symlink(target, error);
    }
    return target;
}

std::error_code FillAndFlush(int file, mode_t mode, std::string_view bytes) {
    if (const std::error_code error = WriteAll(file, bytes)) {
        return error;
    }
    if (fchmod(file, mode) != 0 || fsync(file) != 0) {
        return LastNativeError();
    }
    return {};
}

/// The rename itself is on the disk only once the folder is. Some file systems cannot flush a
/// folder; the file is whole all the same, so a failure here is none of the save.
void FlushFolderIgnoringErrors(const fs::path& folder) {
    const int handle =
        open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle >= 0) {
        fsync(handle);
        close(handle);
    }
}

} // namespace

std::error_code ReplaceFileDurably(const fs::path& target, std::string_view bytes) {
    const fs::path real = FollowLinks(target);
    std::error_code missing;
    if (fs::exists(real, missing) && !fs::is_regular_file(real, missing)) {
        return std::make_error_code(std::errc::permission_denied); // a device or a pipe stays one
    }
    // Not made from the target's name, which may be as long as names can be.
    std::string fresh = (real.parent_path() / ".tavmoor-XXXXXX").string();
    const int file = mkostemp(fresh.data(), O_CLOEXEC);
    if (file < 0) {
        return LastNativeError();
    }
    std::error_code error = FillAndFlush(file, ModeOf(real), bytes);
    if (close(file) != 0 && !error) {
        error = LastNativeError();
    }
    if (!error && rename(fresh.c_str(), real.c_str()) != 0) {
        error = LastNativeError();
    }
    if (error) {
        unlink(fresh.c_str());
        return error;
    }
    FlushFolderIgnoringErrors(real.parent_path());
    return {};
}

} // namespace tavmoor
