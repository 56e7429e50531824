#pragma once

#include "core/document/project_document.h"
#include "core/files/profile_file.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tavmoor::cli {

/// A project that was read from its file.
struct OpenProject {
    ProfileFile file;
    ProjectDocument document;
    std::vector<std::string> warnings; ///< messages of the reader, code page bytes
};

enum class ButtonRowsAre : std::uint8_t {
    Live,  ///< as if the canvas had been opened and closed
    AsRead ///< not written again
};

/// Reads a project file.
/// @param programFolder document path that stands for a leading "%"
/// @throws CommandFailure when there is no such file, or it is no project
std::unique_ptr<OpenProject> LoadProject(const std::string& path, const std::string& programFolder,
                                         ButtonRowsAre rows);

/// The program folder that was asked for, or this program's own.
std::string ChosenProgramFolder(const std::optional<std::string>& argument);

} // namespace tavmoor::cli
