#include "services/fields/field_pickers.h"

#include "core/text/number_text.h"
#include "core/text/path_text.h"
#include "services/dialogs/common_dialog.h"
#include "services/dialogs/file_name_check.h"
#include "services/windows/program_session.h"

#include <QWidget>

namespace tavmoor {

std::optional<std::string> PickFile(QWidget& owner, const FilePick& pick) {
    CommonDialog dialog;
    dialog.hOwner = &owner;
    dialog.DialogTitle = pick.title;
    dialog.Filter = pick.filter;
    dialog.InitDir = pick.initialFolder;
    return AskForFile(dialog);
}

std::optional<std::string> PickCheckedFile(QWidget& owner, const FilePick& pick) {
    auto path = PickFile(owner, pick);
    if (path && CheckFileName(&owner, *path)) {
        return std::nullopt;
    }
    return path;
}

void PickPicture(ProgramContext context, QWidget& owner, std::string_view title,
                 std::string_view filter, const std::string& current,
                 const std::function<void(const std::string& path)>& store) {
    context.windows.Unload(WindowName::Form2);
    const std::string& lastFolder = context.session.settings.lastPictureFolder;
    const auto path = PickFile(owner, {title, filter, current.empty() ? lastFolder : current});
    if (path) {
        TakePicture(context, owner, *path, store);
    }
}

void TakePicture(ProgramContext context, QWidget& owner, const std::string& path,
                 const std::function<void(const std::string& path)>& store) {
    if (CheckFileName(&owner, path)) {
        return;
    }
    store(path);
    context.windows.Unload(WindowName::Form2);
    if (auto* main = context.windows.Main()) {
        main->ShowPicturePreview(path);
    }
    context.session.settings.lastPictureFolder = WithBackslash(FolderOf(path));
}

std::optional<PickedFont> PickFont(QWidget& owner, const PickedFont& current,
                                   std::string_view title) {
    CommonDialog dialog;
    dialog.hOwner = &owner;
    dialog.DialogTitle = title;
    dialog.FontName = current.font.name;
    dialog.FontSize = ParseNumber(current.font.size).value_or(0);
    dialog.Bold = current.font.bold;
    dialog.Italic = current.font.italic;
    dialog.Underline = current.font.underline;
    dialog.StrikeThru = current.font.strikeOut;
    dialog.RGBResult = current.color;
    return AskForFont(dialog);
}

} // namespace tavmoor
