#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace tavmoor {

/// What a build is going to write.
struct RoomWanted {
    std::uint64_t package = 0; ///< bytes, first in the work folder and then in the disc's
    std::uint64_t others = 0;  ///< bytes of all other files, in the disc's folder alone
};

/// A disk on which there is too little room.
struct Shortage {
    std::uint64_t bytes = 0; ///< that are missing
    bool onDisc = false;     ///< of the disc's folder; else of the work folder
};

/// Looks at both file systems before anything is written; one that does not tell has room.
std::optional<Shortage> ShortageOf(const std::filesystem::path& work,
                                   const std::filesystem::path& disc, const RoomWanted& wanted);

} // namespace tavmoor
