#include "services/system/registry_wrapper.h"

#include <array>
#include <utility>

namespace tavmoor {

namespace {

/// The key of a full path; nothing when the path is no key below a root.
std::optional<RegistryKey> KeyOf(std::string_view path) {
    RegistryKey key{RegistryRoot::None, std::string(path)};
    key.root = Model1::SplitPath(key.path);
    if (key.root == RegistryRoot::None || key.path.empty()) {
        return std::nullopt;
    }
    return key;
}

} // namespace

RegistryRoot Model1::RootByName(std::string_view name) {
    static constexpr std::array<std::pair<std::string_view, RegistryRoot>, 7> roots{{
        {"HKEY_CLASSES_ROOT", RegistryRoot::ClassesRoot},
        {"HKEY_CURRENT_USER", RegistryRoot::CurrentUser},
        {"HKEY_LOCAL_MACHINE", RegistryRoot::LocalMachine},
        {"HKEY_USERS", RegistryRoot::Users},
        {"HKEY_PERFORMANCE_DATA", RegistryRoot::PerformanceData},
        {"HKEY_CURRENT_CONFIG", RegistryRoot::CurrentConfig},
        {"HKEY_DYN_DATA", RegistryRoot::DynData},
    }};
    for (const auto& [known, root] : roots) {
        if (name == known) {
            return root;
        }
    }
    return RegistryRoot::None;
}

RegistryRoot Model1::SplitPath(std::string& path) {
    if (!path.starts_with("HKEY_") || path.ends_with('\\')) {
        return RegistryRoot::None;
    }
    const std::size_t end = path.find('\\');
    const RegistryRoot root = RootByName(std::string_view(path).substr(0, end));
    path.erase(0, end == std::string::npos ? end : end + 1);
    return root;
}

void Model1::CreateKeyIgnoringErrors(std::string_view path) {
    if (const auto key = KeyOf(path)) {
        static_cast<void>(store_.CreateKey(*key));
    }
}

void Model1::SetNumberIgnoringErrors(std::string_view path, std::string_view name,
                                     std::uint32_t number) {
    if (const auto key = KeyOf(path)) {
        static_cast<void>(store_.SetNumber(*key, name, number));
    }
}

std::optional<std::string> Model1::Read(std::string_view path) const {
    const std::size_t end = path.rfind('\\');
    const auto key = end == std::string_view::npos ? std::nullopt : KeyOf(path.substr(0, end));
    return key ? store_.Read(*key, path.substr(end + 1)) : std::nullopt;
}

} // namespace tavmoor
