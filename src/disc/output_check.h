#pragma once

#include "core/document/project_document.h"
#include "disc/build_events.h"

#include <string>
#include <vector>

namespace tavmoor {

/// Compares what lies in the disc's folder with what a build has just placed there: the autorun
/// program with the template's, the package's head, length and configuration with those of the one
/// that was written, `Autorun.inf` and the icon; and tells what should be gone and is not. Placing
/// ignores errors one by one; this tells them. The files' bytes in the package are not read again:
/// its head is that of this build and no other.
/// @return one sentence for each fault, code page bytes; empty when all is as built
std::vector<std::string> FaultsOfPlacedOutput(const ProjectDocument& document,
                                              const BuiltPackage& package);

} // namespace tavmoor
