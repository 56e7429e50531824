#include "core/session/run_marker_platform.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tavmoor {

std::unique_ptr<RunMarker::Platform> RunMarker::Platform::Lock(const std::filesystem::path& path) {
    const int file = open(path.c_str(), O_CREAT | O_RDWR | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (file < 0) {
        return nullptr;
    }
    if (flock(file, LOCK_EX | LOCK_NB) != 0) {
        close(file);
        return nullptr;
    }
    return std::unique_ptr<Platform>(new Platform(path, file));
}

RunMarker::Platform::~Platform() {
    close(static_cast<int>(handle_));
}

void RunMarker::Platform::Delete() {
    unlink(path_.c_str());
}

} // namespace tavmoor
