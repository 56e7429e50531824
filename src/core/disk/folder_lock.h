#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

namespace tavmoor {

/// A folder that one process at a time works in: the disc's folder during a build, a working
/// folder while its process lives. The system lets go of it when the process ends, however it ends.
/// Off Windows the folder itself is locked, on Windows a file in it that goes with its handle. Only
/// who asks for the lock heeds it.
class FolderLock {
public:
    /// What became of an attempt.
    enum class State : std::uint8_t {
        Held,       ///< by this object
        Taken,      ///< by another one, see Holder
        Impossible, ///< the folder or its file system has no locks; work goes on without one
    };

    explicit FolderLock(const std::filesystem::path& folder);
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock();

    [[nodiscard]] State Result() const { return state_; }
    /// Who has a lock that is taken, in UTF-8: "tavmoor (process 123)"; "another program" when the
    /// system does not tell.
    [[nodiscard]] const std::string& Holder() const { return holder_; }

private:
    class Platform; // one file per platform

    std::unique_ptr<Platform> platform_;
    State state_ = State::Impossible;
    std::string holder_;
};

} // namespace tavmoor
