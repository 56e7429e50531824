#pragma once

#include <windows.h>

#include <filesystem>

namespace tavmoor {

/// A sound file, open in the system's media player. Open, played and closed by one thread, which
/// must let messages through.
class MciSound {
public:
    /// Opens the file with the player that suits it; IsOpen tells whether one was found.
    explicit MciSound(const std::filesystem::path& file);
    MciSound(const MciSound&) = delete;
    MciSound& operator=(const MciSound&) = delete;
    ~MciSound();

    [[nodiscard]] bool IsOpen() const noexcept { return open_; }

    /// Plays from the beginning. The window is sent MM_MCINOTIFY when the end is reached.
    /// @return false when it cannot be played, as on a machine without a sound device
    [[nodiscard]] bool Play(HWND told);
    void Stop();

private:
    bool open_ = false;
};

} // namespace tavmoor
