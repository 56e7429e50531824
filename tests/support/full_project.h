#pragma once

#include "core/document/project_document.h"

#include <memory>
#include <string>

namespace tavmoor::test {

/// A document in which every field of the two files holds a value, and the text that each file must
/// have for it, spelled out key by key.
struct FullProject {
    ProjectDocument document;
    std::string projectText;
    std::string configurationText;
};

/// @param folder document path of the folder in which the pictures of the buttons, "button.png",
///        lie; no backslash at its end. The reader clears pictures that do not exist.
std::unique_ptr<FullProject> MakeFullProject(const std::string& folder = "Z:\\art");

} // namespace tavmoor::test
