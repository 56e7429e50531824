#pragma once

#include "services/system/service_slot.h"
#include "services/system/shell.h"

#include <string>
#include <vector>

namespace tavmoor::test {

/// Keeps what the program hands to the system, and starts nothing. Everything fails when it has an
/// objection.
class RecordingShell final : public Shell {
public:
    ShellOutcome OpenDocument(std::string_view path) override { return Keep("document", path); }
    ShellOutcome OpenAddress(std::string_view address) override { return Keep("address", address); }
    ShellOutcome StartProgram(std::string_view path, const std::vector<std::string>&) override {
        return Keep("program", path);
    }
    ShellOutcome OpenHelpFile(std::string_view path) override {
        Keep("help", path);
        return {showsHelp, ""};
    }

    bool showsHelp = true;
    std::string objection;
    std::vector<std::string> calls;

private:
    ShellOutcome Keep(const char* kind, std::string_view what) {
        calls.push_back(std::string(kind) + " " + std::string(what));
        return {objection.empty(), objection};
    }
    ScopedService<Shell> slot_{*this};
};

} // namespace tavmoor::test
