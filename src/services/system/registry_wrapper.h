#pragma once

#include "services/system/registry_store.h"

namespace tavmoor {

/// The registry by full paths such as "HKEY_CURRENT_USER\Software\Tavmoor".
class Model1 {
public:
    explicit Model1(RegistryStore& store) : store_(store) {}

    /// Takes the root off a full path: `path` is cut to what stands behind the first backslash.
    /// @return None, with the path as it was, unless it starts with "HKEY_" and does not end in a
    ///         backslash; None also for a root that is not known
    static RegistryRoot SplitPath(std::string& path);
    /// The root of a name such as "HKEY_CLASSES_ROOT"; None for any other text.
    static RegistryRoot RootByName(std::string_view name);

    // The system's refusals are no news to the callers, who go on with their next step.

    /// Makes a key. A path that is only a root, or is none, does nothing.
    void CreateKeyIgnoringErrors(std::string_view path);
    /// Sets a number of a key that exists.
    void SetNumberIgnoringErrors(std::string_view path, std::string_view name,
                                 std::uint32_t number);
    /// The value that the last part of the path names, as text; nothing when it cannot be read.
    [[nodiscard]] std::optional<std::string> Read(std::string_view path) const;

private:
    RegistryStore& store_;
};

} // namespace tavmoor
