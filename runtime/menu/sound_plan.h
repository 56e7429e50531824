#pragma once

#include "core/document/project_document.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace tavmoor {

/// The sound that plays behind the menu.
struct BackgroundSound {
    std::string file;              ///< name in the package; "" for none
    bool startsByItself = false;   ///< with the program; otherwise the user starts it
    int rounds = 1;                ///< 1 to 1000
    std::chrono::seconds pause{1}; ///< between two rounds, 1 to 60
};

BackgroundSound MakeBackgroundSound(const SoundSpec& sound);

/// The sound of pointing and clicking: a name in the package; "" for none.
std::string ClickSoundFile(const SoundSpec& sound);

/// What of a background sound is still to be played.
class SoundRounds {
public:
    explicit SoundRounds(const BackgroundSound& sound)
        : rounds_(sound.rounds), pause_(sound.pause) {}

    /// From the first round on.
    void Start() { left_ = rounds_; }
    void Stop() { left_ = 0; }
    /// A round was heard to its end.
    /// @return how long to pause before the next one; nothing when it was the last
    std::optional<std::chrono::seconds> EndRound();
    /// True from the start to the end of the last round, pauses included.
    [[nodiscard]] bool IsOn() const { return left_ > 0; }

private:
    int rounds_;
    std::chrono::seconds pause_;
    int left_ = 0;
};

/// True for a wave file whose parts all lie within its bytes: a player that is handed the bytes
/// alone does not know where they end.
bool IsWholeWave(std::string_view bytes);

} // namespace tavmoor
