#pragma once

#include "services/window_registry.h"

namespace tavmoor {

/// Registers the windows of the services.
void RegisterServiceWindows(ProgramContext context);

} // namespace tavmoor
