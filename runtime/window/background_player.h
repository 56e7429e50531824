#pragma once

#include "menu/command_runner.h"
#include "menu/sound_plan.h"

#include <filesystem>
#include <future>
#include <memory>

namespace tavmoor {

/// Plays the background sound on a thread of its own, so that a slow disc or a slow sound device
/// holds up no window. A sound that cannot be played is silent: the menu does not depend on it.
class BackgroundPlayer {
public:
    /// @param package path of the package that holds the sound
    BackgroundPlayer(const std::filesystem::path& package, const BackgroundSound& sound);
    BackgroundPlayer(const BackgroundPlayer&) = delete;
    BackgroundPlayer& operator=(const BackgroundPlayer&) = delete;
    /// Ends the sound and removes what was unpacked.
    ~BackgroundPlayer();

    /// Starts a sound that starts by itself; the second call and later ones do nothing.
    void ProgramStarted();
    void Change(SoundChange change);

private:
    class Worker;

    std::shared_ptr<Worker> worker_; ///< null without a sound
    std::future<void> ended_;        ///< ready when the worker has tidied up
    bool startsByItself_;
};

} // namespace tavmoor
