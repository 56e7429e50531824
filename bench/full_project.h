#pragma once

#include <memory>
#include <string>

#include "core/document/project_document.h"

namespace tavmoor::bench {

/// A project with every table full: 101 additional commands, 101 buttons (each with a picture that
/// exists), 99 texts, 25 videos, fonts and shortcuts.
std::unique_ptr<ProjectDocument> FullProject(const std::string& picturePath);

} // namespace tavmoor::bench
