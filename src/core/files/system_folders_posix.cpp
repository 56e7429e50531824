#include "core/files/system_folders.h"

#include "core/files/runtime_error.h"

#include <cstdlib>
#include <string>
#include <unistd.h>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

fs::path HomeFolder(const char* variable, const char* below) {
    const char* chosen = std::getenv(variable);
    if (chosen != nullptr && *chosen == '/') {
        return chosen;
    }
    const char* home = std::getenv("HOME");
    return fs::path(home != nullptr && *home == '/' ? home : "/tmp") / below;
}

} // namespace

fs::path ProgramFile() {
    std::error_code error;
    fs::path file = fs::read_symlink("/proc/self/exe", error);
    if (error) {
        throw FileError(error, "/proc/self/exe");
    }
    return file;
}

bool CanWriteFolder(const fs::path& folder) {
    return access(folder.c_str(), W_OK | X_OK) == 0;
}

fs::path UserConfigurationFolder() {
    return HomeFolder("XDG_CONFIG_HOME", ".config");
}

fs::path UserDataFolder() {
    return HomeFolder("XDG_DATA_HOME", ".local/share");
}

} // namespace tavmoor
