#pragma once

#include "core/document/project_document.h"

#include <string>

namespace tavmoor {

/// Writes `tavmoor.cfg`, from which the autorun program becomes the designed menu, afresh into the
/// build folder: the project file without the editor's own keys, with paths reduced to names.
/// @return the file's path
/// @throws RuntimeError when it cannot be written
std::string WriteRuntimeConfiguration(const ProjectDocument& document,
                                      const std::string& buildFolder);

} // namespace tavmoor
