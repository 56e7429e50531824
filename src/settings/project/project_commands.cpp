#include "settings/project/project_commands.h"

#include "core/document/project_reader.h"
#include "core/document/project_reset.h"
#include "core/document/project_writer.h"
#include "core/files/file_store.h"
#include "core/files/runtime_error.h"
#include "core/session/recovery_folder.h"
#include "services/dialogs/dialog_answers.h"
#include "services/dialogs/message_box.h"
#include "services/dialogs/project_save_dialog.h"
#include "services/values/qt_text.h"
#include "services/windows/program_session.h"
#include "settings/project/project_listener.h"

#include <utility>

namespace tavmoor {

namespace {

std::vector<std::filesystem::path> RecoveryPlaces() {
    std::error_code error; // a place that is not there is not listed
    const auto folder = RecoveryFolder();
    return std::filesystem::is_directory(folder, error) ? std::vector<std::filesystem::path>{folder}
                                                        : std::vector<std::filesystem::path>{};
}

} // namespace

void ProjectCommands::NewProject() {
    if (!AskYesNo(&owner_,
                  QStringLiteral("If not saved, all changes made in current project will be lost!\n"
                                 "Do you want to start new project?"),
                  QStringLiteral("New project"))) {
        return;
    }
    KeepUnsaved();
    context_.windows.Unload(WindowName::Form17);
    Reset();
    context_.session.recovery.Rest(context_.session.document);
    context_.windows.Main()->ShowDocument();
}

void ProjectCommands::OpenProject() {
    WorkingValues& working = context_.session.document.Working;
    const std::string path =
        AskForProject("Open Tavmoor project ...",
                      working.Recent.empty() ? working.LastProjectFolder : working.Recent);
    working.LastProjectFolder = path;
    Open(path);
}

void ProjectCommands::OpenExample() {
    Open(AskForProject("Open Example", context_.session.programFolder));
}

std::string ProjectCommands::AskForProject(std::string_view title, const std::string& start) {
    dialog_.hOwner = &owner_;
    dialog_.FileName.clear();
    dialog_.FileTitle.clear();
    dialog_.InitDir = start;
    dialog_.DialogTitle = title;
    dialog_.Filter = words::ProjectFilter;
    dialog_.FilterIndex = 1;
    dialog_.SidebarFolders = RecoveryPlaces();
    const auto path = AskForFile(dialog_);
    dialog_.SidebarFolders.clear();
    return path.value_or("");
}

void ProjectCommands::Open(const std::string& path) {
    if (path.empty()) {
        return;
    }
    if (IsInRecoveryFolder(path)) {
        OpenRecovered(path);
        return;
    }
    const auto file = LoadOrTell(path);
    if (!file) {
        return;
    }
    KeepUnsaved();
    Reset();
    ProgramSession& session = context_.session;
    session.document.Working.Recent = path;
    session.document.Working.ProjectPath = path;
    Read(*file);
    ShowOpened();
    session.settings.recentProject = path;
    session.recovery.Rest(session.document);
}

void ProjectCommands::OpenRecovered(const std::string& path) {
    ProgramSession& session = context_.session;
    const std::string recent = session.document.Working.Recent;
    // Read before the current project is kept: that may push out the oldest copy.
    const auto file = LoadOrTell(path);
    if (!file || file->Entries().empty()) {
        return; // the copy stays, since it may be readable another time
    }
    KeepUnsaved();
    Reset();
    // A save must not take the copy for the project's own file, nor begin in its folder.
    dialog_.FileName.clear();
    if (IsInRecoveryFolder(session.document.Working.LastProjectFolder)) {
        session.document.Working.LastProjectFolder.clear();
    }
    Read(*file);
    session.document.Working.Recent = recent;
    session.recovery.Adopt(path, session.document);
    ShowOpened();
}

void ProjectCommands::Reset() {
    ProgramSession& session = context_.session;
    ResetProjectSettings(session.document);
    ResetObjects(session.document);
    session.VisualEditorOpened = false;
    // Made anew, it begins with the look of the commands that a new project has.
    context_.windows.Unload(WindowName::Form4);
    MainWindowCommands& main = *context_.windows.Main();
    main.HidePanels();
    main.ShowMainSettings();
}

/// Read before anything of the current project is given up. What cannot be read must not count as
/// an empty project that the next save writes over the file.
std::optional<ProfileFile> ProjectCommands::LoadOrTell(const std::string& path) {
    try {
        return std::optional<ProfileFile>(std::in_place, ReadWholeFile(path));
    } catch (const RuntimeError& error) {
        if (error.Number() == ErrorNumber::FileNotFound) {
            return std::optional<ProfileFile>(std::in_place, std::string());
        }
        ShowMessageBox(&owner_,
                       {QStringLiteral("The project was not opened.\n") + ToQString(error.what()),
                        QStringLiteral("Open project"), BoxButtons::Ok, BoxIcon::Critical});
        return std::nullopt;
    }
}

void ProjectCommands::Read(const ProfileFile& file) {
    ProgramSession& session = context_.session;
    ProjectListener listener(context_, owner_);
    ReadProjectFrom(file, session.document, session.programFolder, listener);
    if (!context_.windows.Stands(WindowName::Form16)) {
        // Without a canvas to take the buttons over, the next save would leave them out.
        MakeButtonsLive(session.document, ButtonRowsIn(file));
    }
}

void ProjectCommands::ShowOpened() {
    context_.windows.Main()->ShowMainSettings();
    context_.windows.Main()->StopSound();
}

void ProjectCommands::SaveProject() {
    const std::string& path = context_.session.document.Working.ProjectPath;
    Save(path.empty() ? AskForName : std::string_view(path));
}

void ProjectCommands::SaveProjectAs() {
    Save(AskForName);
}

void ProjectCommands::Save(std::string_view target) {
    ProgramSession& session = context_.session;
    WorkingValues& working = session.document.Working;
    const WorkingValues before = working;
    const std::string dialogBefore = dialog_.FileName;
    dialog_.hOwner = &owner_;
    CommonProjectSaveDialog dialog(dialog_);
    try {
        if (!tavmoor::SaveProject(session.document, std::string(target), session.programFolder,
                                  dialog)) {
            return;
        }
    } catch (const RuntimeError& error) {
        // The project stays what it was, so that the next save goes to the file that it has.
        working = before;
        dialog_.FileName = dialogBefore;
        ShowMessageBox(&owner_,
                       {QStringLiteral("The project was not saved.\n") + ToQString(error.what()),
                        QStringLiteral("Save project"), BoxButtons::Ok, BoxIcon::Critical});
        return;
    }
    session.settings.recentProject = working.Recent;
    session.recovery.Rest(session.document);
    context_.windows.Main()->ShowDocument();
}

void ProjectCommands::OfferRecovered() {
    const std::string path = std::exchange(context_.session.recoveredProject, {});
    if (path.empty() || !FileExists(path)) {
        return;
    }
    if (AskYesNo(&owner_,
                 QStringLiteral("The program did not end regularly the last time. Your project was "
                                "kept in\n%1\nDo you want to open it now?")
                     .arg(ToQString(path)),
                 QStringLiteral("Recovery of unsaved projects"))) {
        OpenRecovered(path);
    }
}

void ProjectCommands::KeepUnsaved() {
    context_.session.recovery.KeepAndLeaveIgnoringErrors(context_.session.document);
}

} // namespace tavmoor
