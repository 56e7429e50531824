#pragma once

#include <filesystem>
#include <memory>
#include <optional>

namespace tavmoor {

/// Says for as long as it lives that the program is running, by a file in the user's data folder
/// that the system keeps locked. A file that is left over and not locked tells of a run that did
/// not end regularly. Several programs at a time have a file each.
///
/// It never fails: where no file can be made, the next start knows of no crash.
class RunMarker {
public:
    RunMarker();
    RunMarker(const RunMarker&) = delete;
    RunMarker& operator=(const RunMarker&) = delete;
    /// The regular end: the file goes.
    ~RunMarker();

    /// When the earliest of the runs began that did not end regularly; nothing when all did.
    [[nodiscard]] std::optional<std::filesystem::file_time_type> CrashedSince() const {
        return crashedSince_;
    }

private:
    class Platform; // one file per platform

    void TakePlace(const std::filesystem::path& path);

    std::unique_ptr<Platform> own_;
    std::optional<std::filesystem::file_time_type> crashedSince_;
};

} // namespace tavmoor
