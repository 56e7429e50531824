#pragma once

#include "menu/command_runner.h"

namespace tavmoor {

/// Hands requests to the system's shell, which knows the program for each kind of file and
/// address, and asks for elevation where a program wants it.
class ShellRunner final : public CommandRunner {
public:
    StartResult Start(const StartRequest& request, std::string& reason) override;
};

} // namespace tavmoor
