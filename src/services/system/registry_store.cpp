#include "services/system/registry_store.h"

#include "services/system/registry_store_platform.h"
#include "services/system/service_slot.h"

namespace tavmoor {

RegistryStore& SystemRegistry() {
    auto* replacement = ServiceSlot<RegistryStore>::Replacement();
    return replacement != nullptr ? *replacement : PlatformRegistry();
}

} // namespace tavmoor
