#pragma once

#include "core/project_document.h"

#include <string>

namespace tavmoor {

/// Writes the project to a recovery file before a program ends on a run-time error: beside the
/// project, or in the user's data folder when it was never saved or its folder cannot be written.
/// @return the file's path in document form
/// @throws RuntimeError when it cannot be written
std::string WriteRecoveryFile(const ProjectDocument& document);

} // namespace tavmoor
