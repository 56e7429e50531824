#include "services/system/registry_store_platform.h"
#include "services/values/wide_text_windows.h"

#include <array>
#include <windows.h>

namespace tavmoor {

namespace {

HKEY HandleOf(RegistryRoot root) {
    // The predefined handles are 32-bit numbers, extended by their sign.
    return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(root)));
}

class WindowsRegistry final : public RegistryStore {
public:
    bool CreateKey(const RegistryKey& key) override {
        HKEY handle = nullptr;
        if (RegCreateKeyW(HandleOf(key.root), WideText(key.path).c_str(), &handle) !=
            ERROR_SUCCESS) {
            return false;
        }
        RegCloseKey(handle);
        return true;
    }

    bool SetNumber(const RegistryKey& key, std::string_view name, std::uint32_t number) override {
        HKEY handle = nullptr;
        if (RegOpenKeyExW(HandleOf(key.root), WideText(key.path).c_str(), 0, KEY_WRITE, &handle) !=
            ERROR_SUCCESS) {
            return false;
        }
        const DWORD value = number;
        const LSTATUS status = RegSetValueExW(handle, WideText(name).c_str(), 0, REG_DWORD,
                                              reinterpret_cast<const BYTE*>(&value), sizeof value);
        RegCloseKey(handle);
        return status == ERROR_SUCCESS;
    }

    std::optional<std::string> Read(const RegistryKey& key, std::string_view name) override {
        const std::wstring path = WideText(key.path);
        const std::wstring valueName = WideText(name);
        DWORD number = 0;
        DWORD size = sizeof number;
        if (RegGetValueW(HandleOf(key.root), path.c_str(), valueName.c_str(), RRF_RT_REG_DWORD,
                         nullptr, &number, &size) == ERROR_SUCCESS) {
            return std::to_string(static_cast<std::int32_t>(number));
        }
        std::array<wchar_t, 1024> text{}; // a longer text is no value that is asked for
        size = sizeof text;
        if (RegGetValueW(HandleOf(key.root), path.c_str(), valueName.c_str(), RRF_RT_REG_SZ,
                         nullptr, text.data(), &size) == ERROR_SUCCESS) {
            return NarrowText(text.data());
        }
        return std::nullopt;
    }
};

} // namespace

RegistryStore& PlatformRegistry() {
    static WindowsRegistry registry;
    return registry;
}

} // namespace tavmoor
