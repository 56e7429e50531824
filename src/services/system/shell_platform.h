#pragma once

#include "services/system/shell.h"

namespace tavmoor {

/// The system's own shell.
Shell& PlatformShell();

/// The outcome for a path at which nothing lies.
ShellOutcome FileMissing(std::string_view path);

} // namespace tavmoor
