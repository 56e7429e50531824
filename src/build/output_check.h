#pragma once

#include "core/project_document.h"

#include <string>
#include <vector>

namespace tavmoor {

/// Compares what lies in the disc's folder with what a build has just placed there: the autorun
/// program with the template's, the package's names, sizes and configuration with the project's,
/// `Autorun.inf` and the icon. Placing ignores errors one by one; this tells them.
/// @return one sentence for each fault, code page bytes; empty when all is as built
std::vector<std::string> FaultsOfPlacedOutput(const ProjectDocument& document);

} // namespace tavmoor
