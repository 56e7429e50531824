#pragma once

#include "core/document/project_document.h"
#include "core/files/profile_file.h"

#include <bitset>
#include <string>
#include <string_view>

namespace tavmoor {

/// What the reader tells the rest of the program while it reads, in the order in which it comes to
/// it. Each does nothing unless overridden; texts and paths are in the system's code page.
class ProjectReaderListener {
public:
    virtual ~ProjectReaderListener() = default;

    /// A message box with one button.
    virtual void ShowMessage(std::string_view /*text*/, std::string_view /*title*/) {}
    /// A font file of the list was read, to be registered with the session.
    virtual void FontRead(std::string_view /*path*/) {}
    virtual void LetEventsRun() {}
    /// The document is complete: what the template allows is to be applied.
    virtual void ApplyTemplateCapabilities() {}
    /// The project's path is to be shown in `ProjectTitle`.
    virtual void ProjectTitleChanged(std::string_view /*path*/) {}

protected:
    ProjectReaderListener() = default;
    ProjectReaderListener(const ProjectReaderListener&) = default;
    ProjectReaderListener& operator=(const ProjectReaderListener&) = default;
};

/// Fills the document from the project file that its `Recent` names; called after both resets. It
/// never fails: a missing file reads as one whose keys are all missing, a value that cannot be
/// converted leaves its field.
/// @param programFolder stands for a leading "%" of stored paths; no backslash at its end
void ReadProject(ProjectDocument& document, const std::string& programFolder,
                 ProjectReaderListener& listener);

/// ReadProject from entries that are in memory already.
void ReadProjectFrom(const ProfileFile& file, ProjectDocument& document,
                     const std::string& programFolder, ProjectReaderListener& listener);

/// Takes over the values of a runtime configuration, the button rows in it as live ones; used by
/// the autorun program.
void ReadRuntimeConfiguration(const ProfileFile& file, ProjectDocument& document);

/// The button rows that stand in a project file.
std::bitset<ButtonRows> ButtonRowsIn(const ProfileFile& file);

/// Makes the rows live, as opening the canvas and closing it would. Reading alone never does that.
void MakeButtonsLive(ProjectDocument& document, const std::bitset<ButtonRows>& rows);

/// Sets `TemplateRuntimePath` from the folder of the descriptor that `Sablon` names.
void UpdateTemplateRuntimePath(ProjectDocument& document);

} // namespace tavmoor
