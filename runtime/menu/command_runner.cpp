#include "menu/command_runner.h"

namespace tavmoor {

namespace {

std::string FailureMessage(const std::string& what, const std::string& reason) {
    return what.empty() ? reason : what + "\n\n" + reason;
}

} // namespace

CommandOutcome RunCommand(const MenuCommand& command, std::string_view discFolder,
                          const PathExists& exists, CommandRunner& runner) {
    if (command.kind == CommandKind::Exit) {
        return {.closesMenu = true};
    }
    if (command.kind == CommandKind::Sound) {
        return {.sound = SoundChange::Toggle};
    }
    const auto resolution = ResolveCommand(command, discFolder, exists);
    if (const auto* refusal = std::get_if<CommandRefusal>(&resolution)) {
        return {.message = FailureMessage(command.target, refusal->reason)};
    }
    const StartRequest& request = std::get<StartRequest>(resolution);
    std::string reason;
    switch (runner.Start(request, reason)) {
    case StartResult::Started:
        return {.closesMenu = command.closes,
                .sound = command.stopsSound ? SoundChange::Stop : SoundChange::None};
    case StartResult::Failed:
        return {.message = FailureMessage(request.file, reason)};
    case StartResult::Cancelled:
        break;
    }
    return {};
}

} // namespace tavmoor
