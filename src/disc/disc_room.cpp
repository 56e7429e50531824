#include "disc/disc_room.h"

#include "core/disk/file_identity.h"
#include "core/disk/volume_traits.h"

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

std::uint64_t Missing(const fs::path& folder, std::uint64_t wanted) {
    const auto free = FreeBytes(folder);
    return free && *free < wanted ? wanted - *free : 0;
}

bool IsOneVolume(const fs::path& a, const fs::path& b) {
    const auto first = IdentityOf(a);
    const auto second = IdentityOf(b);
    return first && second && first->volume == second->volume;
}

} // namespace

std::optional<Shortage> ShortageOf(const fs::path& work, const fs::path& disc,
                                   const RoomWanted& wanted) {
    // On one file system the finished package is moved and needs its room once.
    const bool once = IsOneVolume(work, disc);
    if (const auto bytes = Missing(work, wanted.package); bytes > 0 && !once) {
        return Shortage{bytes, false};
    }
    if (const auto bytes = Missing(disc, wanted.package + wanted.others); bytes > 0) {
        return Shortage{bytes, true};
    }
    return std::nullopt;
}

} // namespace tavmoor
