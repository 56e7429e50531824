#pragma once

#include "services/windows/window_registry.h"

namespace tavmoor {

/// Registers a window class under its name.
template <typename Window>
void Register(ProgramContext context, WindowName name) {
    context.windows.Register(name, [context] { return new Window(context); });
}

/// Registers the windows of the services.
void RegisterServiceWindows(ProgramContext context);

} // namespace tavmoor
