#include "core/document/project_writer.h"

#include "core/document/field_writer.h"
#include "core/files/file_store.h"
#include "core/text/path_text.h"

namespace tavmoor {

namespace {

/// Asks for the path. The second copy, which the open dialog starts from, follows only when the
/// extension had to be added; with the extension typed by hand it stays as it was.
bool AskForPath(WorkingValues& working, const std::string& programFolder,
                ProjectSaveDialog& dialog) {
    const std::string& folder =
        working.LastProjectFolder.empty() ? programFolder : working.LastProjectFolder;
    const std::string chosen =
        dialog.Show(folder, "Save autorun project ...", words::ProjectFilter);
    if (chosen.empty()) {
        return false;
    }
    working.LastProjectFolder = chosen.substr(0, chosen.size() - FileNameOf(chosen).size());
    working.ProjectPath = chosen;
    if (!HasProjectEnding(chosen)) {
        working.ProjectPath += words::ProjectEnding;
        working.Recent = working.ProjectPath;
    }
    return true;
}

} // namespace

bool HasProjectEnding(std::string_view path) {
    return path.ends_with(words::ProjectEnding.substr(1));
}

std::string ProjectText(const ProjectDocument& document) {
    return FieldFileText(document, FieldFile::Project);
}

void WriteProject(const ProjectDocument& document, std::string_view path) {
    WriteWholeFile(path, ProjectText(document));
}

bool SaveProject(ProjectDocument& document, std::string_view target,
                 const std::string& programFolder, ProjectSaveDialog& dialog) {
    WorkingValues& working = document.Working;
    dialog.LetEventsRun();
    if (target == AskForName) {
        if (!AskForPath(working, programFolder, dialog)) {
            return false;
        }
    } else if (!HasProjectEnding(working.ProjectPath)) {
        working.ProjectPath += words::ProjectEnding;
        working.Recent += words::ProjectEnding;
    }
    WriteProject(document, working.ProjectPath);
    dialog.LetEventsRun();
    const std::string shown = dialog.CurrentFileName();
    if (!shown.empty()) {
        working.ProjectPath = shown.ends_with(words::ProjectEnding)
                                  ? shown
                                  : shown + std::string(words::ProjectEnding);
    }
    return true;
}

} // namespace tavmoor
