#pragma once

#include <filesystem>
#include <string_view>

namespace tavmoor {

/// Plays short wav files beside the sound device; see ServiceSlot.
class ClickSoundPlayer {
public:
    virtual ~ClickSoundPlayer() = default;
    virtual void Play(const std::filesystem::path& file) = 0;

protected:
    ClickSoundPlayer() = default;
    ClickSoundPlayer(const ClickSoundPlayer&) = default;
    ClickSoundPlayer& operator=(const ClickSoundPlayer&) = default;
};

/// Starts a wav file (a path in document form) and returns at once; it ends the click sound before.
/// A file that is missing or cannot be played stays silent.
void PlayClickSoundIgnoringErrors(std::string_view path);

} // namespace tavmoor
