#pragma once

#include "menu/command_target.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tavmoor {

enum class StartResult : std::uint8_t {
    Started,
    Cancelled, ///< the user refused it in a question of the system
    Failed,
};

/// Starts what commands ask for; the program's one hands it to the system's shell.
class CommandRunner {
public:
    virtual ~CommandRunner() = default;

    /// @param reason receives why it failed, in words for the user
    virtual StartResult Start(const StartRequest& request, std::string& reason) = 0;

protected:
    CommandRunner() = default;
    CommandRunner(const CommandRunner&) = default;
    CommandRunner& operator=(const CommandRunner&) = default;
};

/// What a command does to the background sound.
enum class SoundChange : std::uint8_t { None, Toggle, Stop };

/// What became of a command.
struct CommandOutcome {
    bool closesMenu = false;
    std::string message{}; ///< to be shown to the user; "" for none
    SoundChange sound = SoundChange::None;
};

/// Runs a command of the menu. One that fails or is cancelled neither closes the menu nor stops the
/// sound.
CommandOutcome RunCommand(const MenuCommand& command, std::string_view discFolder,
                          const PathExists& exists, CommandRunner& runner);

} // namespace tavmoor
