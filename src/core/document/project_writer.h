#pragma once

#include "core/document/project_document.h"

#include <string>
#include <string_view>

namespace tavmoor {

/// The dialog that asks for a project's file name; implemented by the dialog service.
class ProjectSaveDialog {
public:
    virtual ~ProjectSaveDialog() = default;

    /// Shows the dialog with an empty file name.
    /// @return the chosen path, "" on cancel
    virtual std::string Show(std::string_view initialFolder, std::string_view title,
                             std::string_view filter) = 0;
    /// The path of the dialog's last use; "" when it was never used.
    [[nodiscard]] virtual std::string CurrentFileName() const = 0;
    virtual void LetEventsRun() {}

protected:
    ProjectSaveDialog() = default;
    ProjectSaveDialog(const ProjectSaveDialog&) = default;
    ProjectSaveDialog& operator=(const ProjectSaveDialog&) = default;
};

/// The target of SaveProject that asks for a file name.
inline constexpr std::string_view AskForName = "novi";

/// True for a name that ends as project files do; that of "xtavp", without the dot, passes, too.
bool HasProjectEnding(std::string_view path);

/// The whole text of the project file.
std::string ProjectText(const ProjectDocument& document);

/// Writes the project file to a document path; the older file stays when that fails.
/// @throws RuntimeError when the file cannot be written
void WriteProject(const ProjectDocument& document, std::string_view path);

/// The save command: over `target`, or under a name that the dialog asks for when the target is
/// AskForName. Keeps `ProjectPath`, `Recent` and `LastProjectFolder`.
/// @return false when the dialog was cancelled and nothing was written
/// @throws RuntimeError when the file cannot be written
bool SaveProject(ProjectDocument& document, std::string_view target,
                 const std::string& programFolder, ProjectSaveDialog& dialog);

} // namespace tavmoor
