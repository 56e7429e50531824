#include "services/dialogs/dialog_answers.h"

#include "core/files/runtime_error.h"
#include "core/text/number_text.h"
#include "core/text/value_encoding.h"
#include "services/dialogs/common_dialog.h"

namespace tavmoor {

namespace {

/// @return false when the dialog was cancelled
bool IsAnswered(CommonDialog& dialog, void (CommonDialog::*show)()) {
    const bool before = dialog.CancelError;
    dialog.CancelError = true;
    bool answered = true;
    try {
        (dialog.*show)();
    } catch (const RuntimeError& error) {
        if (error.Number() != ErrorNumber::InvalidCall) {
            throw;
        }
        answered = false;
    }
    dialog.CancelError = before;
    return answered;
}

std::optional<std::string> NonEmpty(const std::string& path) {
    return path.empty() ? std::nullopt : std::optional(path);
}

} // namespace

std::optional<std::string> AskForFile(CommonDialog& dialog) {
    dialog.ShowOpen();
    return NonEmpty(dialog.FileName);
}

std::optional<std::string> AskForNewFile(CommonDialog& dialog) {
    return IsAnswered(dialog, &CommonDialog::ShowSave) ? NonEmpty(dialog.FileName) : std::nullopt;
}

std::optional<std::string> AskForFolder(CommonDialog& dialog) {
    dialog.ShowFolder();
    return NonEmpty(CommonDialog::LastFolder());
}

std::optional<ColorValue> AskForColor(CommonDialog& dialog) {
    return IsAnswered(dialog, &CommonDialog::ShowColor) ? std::optional(dialog.RGBResult)
                                                        : std::nullopt;
}

std::optional<PickedFont> AskForFont(CommonDialog& dialog) {
    if (!IsAnswered(dialog, &CommonDialog::ShowFont)) {
        return std::nullopt;
    }
    return PickedFont{{dialog.FontName, RoundSize(FormatNumber(dialog.FontSize)), dialog.Bold,
                       dialog.Italic, dialog.Underline, dialog.StrikeThru},
                      dialog.RGBResult};
}

} // namespace tavmoor
