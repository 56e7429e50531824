#pragma once

#include "build/build_events.h"

#include <string>
#include <vector>

namespace tavmoor {

/// Writes the package "autorun.arn" into the build folder, over an older one: scrambled names and
/// sizes, then the bytes of all files, in list order. Sizes have no limit but the disk's; memory
/// use does not grow with them. Events run after each block.
/// @param listafajlova paths in document form, at most 20
/// @throws RuntimeError 9 for a 21st file (named in the text), 5 for a name that cannot be
///         scrambled, and every file error; the unfinished package stays
BuiltPackage WritePackage(const std::vector<std::string>& listafajlova,
                          const std::string& buildFolder, BuildEvents& events);

} // namespace tavmoor
