#include "core/disk/folder_lock.h"

#include <cerrno>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavmoor {

class FolderLock::Platform {
public:
    explicit Platform(int folder) : folder_(folder) {}
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    ~Platform() { close(folder_); }

    [[nodiscard]] int Folder() const { return folder_; }

private:
    int folder_;
};

namespace {

/// The process that has the lock on a folder, from the kernel's list: lines such as
/// "1: FLOCK  ADVISORY  WRITE 1234 08:01:5678 0 EOF". 0 when it does not say.
long LockingProcess(int folder) {
    struct stat entry {};
    if (fstat(folder, &entry) != 0) {
        return 0;
    }
    const std::string wanted = ":" + std::to_string(entry.st_ino);
    std::ifstream locks("/proc/locks");
    for (std::string line; std::getline(locks, line);) {
        std::istringstream words(line);
        std::string number;
        std::string kind;
        std::string way;
        std::string access;
        std::string place;
        long process = 0;
        words >> number >> kind >> way >> access >> process >> place;
        if (kind == "FLOCK" && place.ends_with(wanted)) {
            return process;
        }
    }
    return 0;
}

std::string HolderOf(int folder) {
    const long process = LockingProcess(folder);
    std::ifstream file("/proc/" + std::to_string(process) + "/comm");
    std::string name;
    if (process <= 0 || !std::getline(file, name)) {
        return "another program";
    }
    return name + " (process " + std::to_string(process) + ")";
}

} // namespace

FolderLock::FolderLock(const std::filesystem::path& folder) {
    const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) {
        return;
    }
    platform_ = std::make_unique<Platform>(handle);
    if (flock(handle, LOCK_EX | LOCK_NB) == 0) {
        state_ = State::Held;
    } else if (errno == EWOULDBLOCK) {
        state_ = State::Taken;
        holder_ = HolderOf(handle);
    }
}

FolderLock::~FolderLock() = default;

} // namespace tavmoor
