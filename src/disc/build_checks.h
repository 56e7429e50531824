#pragma once

#include "core/document/project_document.h"
#include "disc/disc_survey.h"

#include <optional>
#include <string>
#include <vector>

namespace tavmoor {

// What a build asks before it touches anything. Each gives the text of the objection, code page
// bytes, and nothing when all is well.

/// The template: a descriptor that can be read, and a program for Windows with the maker's marker.
std::optional<std::string> TemplateObjection(const ProjectDocument& document);

/// The autorun's file name: Windows keeps some names, such as "con", for devices.
std::optional<std::string> ProgramNameObjection(const std::string& programName);

/// The names in the package: each must be one that can be taken out of it again.
std::optional<std::string> PackedNameObjection(const std::vector<std::string>& paths);

/// Old output that cannot be replaced: a folder in its place, or a file that the project itself is
/// made of. The icon is no objection where it lies in its own place already: it stays there.
std::optional<std::string> OldOutputObjection(const ProjectDocument& document,
                                              const std::vector<OldOutput>& old);

/// Of several files, the first that is running or open elsewhere:
/// "NAME is running or in use. Close it and build again."
std::optional<std::string> InUseObjection(const std::vector<OldOutput>& old);

/// The compress folder may not be the disc's folder, under no spelling.
std::optional<std::string> WorkFolderObjection(const ProjectDocument& document,
                                               const std::string& parent);

/// The entry that is the project's own icon, which then stays where it is; null when it is not.
const OldOutput* IconInItsPlace(const ProjectDocument& document, const std::vector<OldOutput>& old);

} // namespace tavmoor
