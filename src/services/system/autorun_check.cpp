#include "services/system/autorun_check.h"

#include "services/system/registry_wrapper.h"
#include "services/system/wait_loop.h"

namespace tavmoor {

namespace {

constexpr const char* DriverKey = R"(HKEY_LOCAL_MACHINE\SYSTEM\CurrentControlSet\Services\CDRom)";
constexpr const char* DriverValue = "Autorun";
constexpr const char* PolicyKey =
    R"(HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Policies\Explorer)";
constexpr const char* PolicyValue = "NoDriveTypeAutoRun";

bool Holds(const Model1& registry, const char* key, const char* name, std::string_view wanted) {
    return registry.Read(std::string(key) + "\\" + name) == wanted;
}

void WritePolicy(Model1& registry) {
    registry.CreateKeyIgnoringErrors(PolicyKey);
    registry.SetNumberIgnoringErrors(PolicyKey, PolicyValue, 0);
}

} // namespace

bool CheckAutorunStatus(RegistryStore& store) {
    Model1 registry(store);
    bool changed = false;
    if (!Holds(registry, DriverKey, DriverValue, "1")) {
        registry.CreateKeyIgnoringErrors(DriverKey);
        LetEventsRunWithoutInput();
        registry.SetNumberIgnoringErrors(DriverKey, DriverValue, 1);
        changed = true;
    }
    if (!Holds(registry, PolicyKey, PolicyValue, "0")) {
        WritePolicy(registry);
        changed = true;
    }
    WritePolicy(registry);
    return changed;
}

QString AutorunStatusText(bool changed) {
    return changed ? QStringLiteral(
                         "Autorun has been successfully enabled and properly set!\n"
                         "From now on, your CD-ROMS will start automatically when they are "
                         "inserted\n"
                         "Remember, you have to restart your computer for the changes to take "
                         "effect...")
                   : QStringLiteral("No changes were made!\n"
                                    "Tavmoor has determined that Autorun is enabled...");
}

} // namespace tavmoor
