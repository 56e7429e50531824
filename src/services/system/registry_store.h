#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tavmoor {

/// The roots of the registry; the numbers are those of the system's predefined handles.
enum class RegistryRoot : std::uint32_t {
    None = 0,
    ClassesRoot = 0x80000000,
    CurrentUser = 0x80000001,
    LocalMachine = 0x80000002,
    Users = 0x80000003,
    PerformanceData = 0x80000004,
    CurrentConfig = 0x80000005,
    DynData = 0x80000006,
};

/// A key's place: its root and the path below it, parts with backslashes between. Keys and value
/// names are compared without regard to case.
struct RegistryKey {
    RegistryRoot root = RegistryRoot::None;
    std::string path;
};

/// Keeps numbers and texts by key and name, as the system's registry does; see ServiceSlot.
class RegistryStore {
public:
    virtual ~RegistryStore() = default;

    /// Makes a key with all that lead to it; one that exists stays as it is. False when it cannot.
    [[nodiscard]] virtual bool CreateKey(const RegistryKey& key) = 0;
    /// Sets a 32-bit number; false when the key does not exist or cannot be written.
    [[nodiscard]] virtual bool SetNumber(const RegistryKey& key, std::string_view name,
                                         std::uint32_t number) = 0;
    /// A value as text, a number as signed decimal; nothing when there is none, it is of another
    /// kind, or it cannot be read.
    [[nodiscard]] virtual std::optional<std::string> Read(const RegistryKey& key,
                                                          std::string_view name) = 0;

protected:
    RegistryStore() = default;
    RegistryStore(const RegistryStore&) = default;
    RegistryStore& operator=(const RegistryStore&) = default;
};

/// The platform's registry, or its replacement. Where the system has none it is a file in the
/// user's configuration folder.
RegistryStore& SystemRegistry();

} // namespace tavmoor
