#include "core/session/run_marker_platform.h"

#include <windows.h>

namespace tavmoor {

std::unique_ptr<RunMarker::Platform> RunMarker::Platform::Lock(const std::filesystem::path& path) {
    // Without any sharing but for deletion, no other process can open the file.
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_DELETE,
                              nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    return std::unique_ptr<Platform>(new Platform(path, reinterpret_cast<std::intptr_t>(file)));
}

RunMarker::Platform::~Platform() {
    CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

void RunMarker::Platform::Delete() {
    DeleteFileW(path_.c_str());
}

} // namespace tavmoor
