#pragma once

#include "core/project_document.h"

#include <memory>
#include <string>

namespace tavmoor::test {

/// A document in which every field of the two files holds a value of its own, and the text that
/// each file must have for it, spelled out key by key.
struct FullProject {
    ProjectDocument document;
    std::string projectText;
    std::string configurationText;
};

/// @param buttonPicture document path of a file that exists: the reader clears others
/// @param buttonPictureName the name of that file alone
std::unique_ptr<FullProject> MakeFullProject(const std::string& buttonPicture,
                                             const std::string& buttonPictureName);

} // namespace tavmoor::test
