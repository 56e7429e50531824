#include "core/disk/volume_traits.h"

#ifdef __linux__
#include <sys/vfs.h>
#endif

namespace tavmoor {

VolumeTraits VolumeTraitsOf(const std::filesystem::path& folder) {
    VolumeTraits traits;
#ifdef __linux__
    // The kernel's numbers; its headers do not name all of them.
    constexpr long Fat = 0x4d44;
    constexpr long ExFat = 0x2011BAB0;
    constexpr long Ntfs = 0x5346544e;
    constexpr long Ntfs3 = 0x7366746e;
    constexpr long FuseBlock = 0x65735546; // what NTFS is mounted as by a program
    struct statfs told {};
    if (statfs(folder.c_str(), &told) == 0) {
        const auto type = static_cast<long>(told.f_type);
        if (type == Fat) {
            traits.largestFile = 0xFFFFFFFFU;
        }
        traits.hasOwners =
            type != Fat && type != ExFat && type != Ntfs && type != Ntfs3 && type != FuseBlock;
    }
#else
    static_cast<void>(folder);
#endif
    return traits;
}

} // namespace tavmoor
