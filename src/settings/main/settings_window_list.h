#pragma once

#include "services/windows/window_registry.h"

namespace tavmoor {

/// Registers all windows of this layer and of the services.
void RegisterSettingsWindows(ProgramContext context);

} // namespace tavmoor
