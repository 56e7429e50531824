#include "services/dialogs/project_save_dialog.h"

#include "core/files/document_path.h"
#include "services/dialogs/dialog_answers.h"
#include "services/dialogs/message_box.h"
#include "services/system/wait_loop.h"
#include "services/values/qt_text.h"

namespace tavmoor {

std::string CommonProjectSaveDialog::Show(std::string_view initialFolder, std::string_view title,
                                          std::string_view filter) {
    std::optional<std::string> chosen;
    do {
        dialog_.FileName.clear();
        dialog_.FileTitle.clear();
        dialog_.InitDir = initialFolder;
        dialog_.DialogTitle = title;
        dialog_.Filter = filter;
        dialog_.FilterIndex = 1;
        dialog_.DefaultExt.clear();
        chosen = AskForNewFile(dialog_);
    } while (chosen && !MayBeReplaced(*chosen));
    return chosen.value_or("");
}

/// Asks about the name that the save command will write.
bool CommonProjectSaveDialog::MayBeReplaced(const std::string& chosen) const {
    if (HasProjectEnding(chosen)) {
        return true;
    }
    const std::string written = chosen + std::string(words::ProjectEnding);
    const auto native = FindNativePath(written);
    std::error_code ignored; // the save itself reports what is wrong with a path
    if (!native || !std::filesystem::exists(*native, ignored)) {
        return true;
    }
    return AskYesNo(dialog_.hOwner,
                    QStringLiteral("\"%1\" already exists.\nDo you want to replace it?")
                        .arg(ToQString(written)),
                    ToQString(dialog_.DialogTitle));
}

void CommonProjectSaveDialog::LetEventsRun() {
    LetEventsRunWithoutInput();
}

} // namespace tavmoor
