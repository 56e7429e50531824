#pragma once

#include "services/system/registry_store.h"

namespace tavmoor {

/// The system's registry; where it has none, a file in the user's configuration folder.
RegistryStore& PlatformRegistry();

} // namespace tavmoor
