#pragma once

#include "core/session/run_marker.h"

namespace tavmoor {

/// A file that stays locked until the object or the process ends.
class RunMarker::Platform {
public:
    /// Makes the file, or takes the one that lies there.
    /// @return null when it is locked by another process, or cannot be made
    static std::unique_ptr<Platform> Lock(const std::filesystem::path& path);

    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    ~Platform();

    /// Deletes the file.
    void Delete();

private:
    Platform(std::filesystem::path path, std::intptr_t handle)
        : path_(std::move(path)), handle_(handle) {}

    std::filesystem::path path_;
    std::intptr_t handle_;
};

} // namespace tavmoor
