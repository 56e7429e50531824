#pragma once

#include <QString>

namespace tavmoor {

class RegistryStore;

/// Off Windows no system starts discs by themselves, and there is nothing that a check could mend.
#ifdef _WIN32
inline constexpr bool AutorunStatusMatters = true;
#else
inline constexpr bool AutorunStatusMatters = false;
#endif

/// Sets the system up to start discs by themselves, going on after every refusal of the registry:
/// the CD-ROM driver's `Autorun` becomes 1 and the user's `NoDriveTypeAutoRun` becomes 0. The
/// latter is written even when it was 0 before. Lets events run in between, the user's clicks
/// excepted.
/// @return true when a value was missing or another one before
bool CheckAutorunStatus(RegistryStore& store);

/// What the box after the check says.
QString AutorunStatusText(bool changed);

} // namespace tavmoor
