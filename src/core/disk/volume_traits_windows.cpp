#include "core/disk/volume_traits.h"

#include <array>
#include <string_view>
#include <windows.h>

namespace tavmoor {

VolumeTraits VolumeTraitsOf(const std::filesystem::path& folder) {
    VolumeTraits traits;
    std::array<wchar_t, MAX_PATH + 1> root{};
    std::array<wchar_t, MAX_PATH + 1> system{};
    const auto count = static_cast<DWORD>(root.size());
    if (GetVolumePathNameW(folder.c_str(), root.data(), count) != 0 &&
        GetVolumeInformationW(root.data(), nullptr, 0, nullptr, nullptr, nullptr, system.data(),
                              count) != 0) {
        const std::wstring_view name(system.data());
        if (name == L"FAT" || name == L"FAT32") {
            traits.largestFile = 0xFFFFFFFFU;
        }
        traits.hasOwners = name == L"NTFS" || name == L"ReFS";
    }
    return traits;
}

} // namespace tavmoor
