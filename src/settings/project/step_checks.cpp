#include "settings/project/step_checks.h"

#include "core/text/text_case.h"
#include "services/dialogs/message_box.h"
#include "services/dialogs/shell_report.h"
#include "services/windows/program_session.h"
#include "services/windows/skinned_window.h"
#include "templates/template_descriptor.h"

namespace tavmoor {

namespace {

QString FolderQuestion() {
    return QStringLiteral("CD-ROM files folder must be selected! Do you want to do it now?");
}

bool IsEditorTemplate(const ProjectDocument& document) {
    return EqualWithoutCase(document.Working.TemplateName, EditorTemplateName);
}

} // namespace

bool StepChecks::TemplateIsChosen() const {
    if (!context_.session.document.OsnovnaPodesavanja.Sablon.empty()) {
        return true;
    }
    if (AskYesNo(&owner_,
                 QStringLiteral("Please select template or Visual editor as your project's working "
                                "environment.\nDo you want to do it now?"),
                 QStringLiteral("Warning..."))) {
        context_.windows.Main()->OpenTemplateWindow();
    }
    return false;
}

bool StepChecks::FolderIsChosen() const {
    if (!context_.session.document.CdFolder().empty()) {
        return true;
    }
    if (AskYesNo(&owner_, FolderQuestion())) {
        context_.windows.Main()->BrowseCdFolder();
    }
    return false;
}

bool StepChecks::FolderIsSet() const {
    if (!context_.session.document.CdFolder().empty()) {
        return true;
    }
    ShowMessageBox(&owner_,
                   {QStringLiteral("CD-ROM files folder not selected!\nPlease select project "
                                   "folder where you keep files and folders that you want to have "
                                   "on your CD/DVD-ROM"),
                    QStringLiteral("Error"), BoxButtons::Ok, BoxIcon::Critical});
    context_.windows.Main()->ShowMainSettings();
    return false;
}

bool StepChecks::FolderIsValid() const {
    const std::string& folder = context_.session.document.CdFolder();
    if (folder.size() > 2 && folder[1] == ':' && folder[2] == '\\') {
        return true;
    }
    if (AskYesNo(&owner_, FolderQuestion())) {
        context_.windows.Main()->ShowMainSettings();
        context_.windows.Main()->BrowseCdFolder();
    } else {
        OpenHelpOrTell(&owner_, context_.session.programFolder);
    }
    return false;
}

bool StepChecks::CommandsAreEditedHere() const {
    if (!TemplateAcceptsEditor(context_.session.document.OsnovnaPodesavanja.Sablon)) {
        return true;
    }
    if (AskYesNo(&owner_,
                 QStringLiteral("To add buttons/commands you have to be in Advanced Visual Editor\n"
                                "Do you want to open the Editor where you can add buttons and set "
                                "your autorun program in visual environment?"),
                 QStringLiteral("Advanced Visual Editor"))) {
        ShowCanvas();
    }
    return false;
}

bool StepChecks::BuildMayStart() const {
    if (context_.session.document.Working.TemplateName.empty()) {
        ShowMessageBox(&owner_,
                       {QStringLiteral("Please select template or Advanced Visual Editor"), {}});
        context_.windows.Main()->ShowMainSettings();
        context_.windows.Main()->OpenTemplateWindow();
        return false;
    }
    return EditorWasSeen();
}

bool StepChecks::EditorWasSeen() const {
    if (!IsEditorTemplate(context_.session.document) || context_.session.VisualEditorOpened) {
        return true;
    }
    const auto answer = ShowMessageBox(
        &owner_, {QStringLiteral("Before you build and save your autorun please preview it in "
                                 "Advanced Visual editor. To do it now click Ok button\nAdvanced "
                                 "Visual Editor can be started if you click Visual Editor button "
                                 "in Design window"),
                  QStringLiteral("Warning..."), BoxButtons::OkCancel, BoxIcon::Warning});
    if (answer == BoxAnswer::Ok) {
        OpenVisualEditor();
        return false;
    }
    return true;
}

void StepChecks::OpenVisualEditor() const {
    if (!FolderIsSet()) {
        return;
    }
    if (!context_.windows.Main()->IsVisible() &&
        context_.windows.Find(WindowName::Form16) == nullptr) {
        ShowMessageBox(&owner_,
                       {QStringLiteral("To open Visual editor, save or discard changes and return "
                                       "to main window"),
                        {}});
        return;
    }
    ShowCanvas();
}

void StepChecks::ShowCanvas() const {
    if (!context_.windows.Stands(WindowName::Form16)) {
        ShowMessageBox(&owner_,
                       {QStringLiteral("The visual editor is not part of this version yet."), {}});
        return;
    }
    context_.windows.OpenFromMain(WindowName::Form16);
}

} // namespace tavmoor
