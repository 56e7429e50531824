#pragma once

#include "package/package_events.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tavmoor {

/// What is known of a package that was written: enough to tell it from every other one, since the
/// noise in its head is new each time.
struct BuiltPackage {
    std::string head;         ///< its first bytes, up to the first file
    std::uint64_t length = 0; ///< bytes
};

/// The length that the package of these files will have, in bytes; their lengths are asked for.
/// @throws RuntimeError when a file cannot be asked
std::uint64_t PackageLength(const std::vector<std::string>& listafajlova);

/// Writes the package "autorun.arn" into the build folder, over an older one: scrambled names and
/// sizes, then the bytes of all files, in list order. Sizes have no limit but the disk's; memory
/// use does not grow with them. Events run after each block.
/// @param listafajlova paths in document form, at most 20
/// @throws RuntimeError 9 for a 21st file (named in the text), 5 for a name that cannot be
///         scrambled, and every file error; the unfinished package stays
BuiltPackage WritePackage(const std::vector<std::string>& listafajlova,
                          const std::string& buildFolder, PackageEvents& events);

} // namespace tavmoor
