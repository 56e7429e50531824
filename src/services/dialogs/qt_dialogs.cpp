#include "services/dialogs/qt_dialogs.h"

#include "services/dialogs/font_dialog.h"
#include "services/dialogs/run_dialog.h"
#include "services/system/service_slot.h"
#include "services/values/file_filter.h"

#include <QColorDialog>
#include <QDir>
#include <QFileDialog>

namespace tavmoor {

namespace {

/// Lists folders among the places of a file dialog for as long as this lives: by itself Qt keeps
/// them in the user's settings, for the file dialogs of all programs.
class AddedPlaces {
public:
    AddedPlaces(QFileDialog& dialog, const QStringList& folders) : dialog_(dialog) {
        if (folders.isEmpty()) {
            return;
        }
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        before_ = dialog.sidebarUrls();
        QList<QUrl> places = *before_;
        for (const QString& folder : folders) {
            places << QUrl::fromLocalFile(QDir::fromNativeSeparators(folder));
        }
        dialog.setSidebarUrls(places);
    }
    AddedPlaces(const AddedPlaces&) = delete;
    AddedPlaces& operator=(const AddedPlaces&) = delete;
    ~AddedPlaces() {
        if (before_) {
            dialog_.setSidebarUrls(*before_);
        }
    }

private:
    QFileDialog& dialog_;
    std::optional<QList<QUrl>> before_;
};

/// Sets the filters and chooses the one to begin with.
void SetFilters(QFileDialog& dialog, const FileRequest& request) {
    const QStringList filters = QtNameFilters(ParseFilter(request.filter));
    if (filters.isEmpty()) {
        return;
    }
    // The names say the patterns already, and better than the patterns themselves do.
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(filters);
    const bool known = request.filterIndex >= 1 && request.filterIndex <= filters.size();
    dialog.selectNameFilter(filters[known ? request.filterIndex - 1 : 0]);
}

/// The number of the filter that is on. Dialogs tell its whole text or just its name.
int SelectedFilter(const QFileDialog& dialog, const FileRequest& request) {
    const auto filters = ParseFilter(request.filter);
    const QStringList texts = QtNameFilters(filters);
    const QString selected = dialog.selectedNameFilter();
    for (int i = 0; i < texts.size(); ++i) {
        const FileFilter& filter = filters[static_cast<std::size_t>(i)];
        if (selected == texts[i] || selected.trimmed() == filter.name.trimmed()) {
            return i + 1;
        }
    }
    return request.filterIndex;
}

std::optional<FileAnswer> AskForFile(const FileRequest& request, QFileDialog::AcceptMode accept,
                                     QFileDialog::FileMode mode) {
    QFileDialog dialog(request.owner);
    dialog.setObjectName(QStringLiteral("FileDialog"));
    const AddedPlaces places(dialog, request.sidebarFolders);
    dialog.setAcceptMode(accept);
    dialog.setFileMode(mode);
    SetFilters(dialog, request);
    dialog.setDefaultSuffix(request.defaultExtension);
    if (!request.folder.isEmpty()) {
        dialog.setDirectory(request.folder);
    }
    if (!request.file.isEmpty()) {
        dialog.selectFile(request.file);
    }
    if (RunDialog(dialog, request.title) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return FileAnswer{QDir::toNativeSeparators(dialog.selectedFiles().constFirst()),
                      SelectedFilter(dialog, request)};
}

} // namespace

std::optional<FileAnswer> QtDialogs::OpenFile(const FileRequest& request) {
    return AskForFile(request, QFileDialog::AcceptOpen, QFileDialog::ExistingFile);
}

std::optional<FileAnswer> QtDialogs::SaveFile(const FileRequest& request) {
    return AskForFile(request, QFileDialog::AcceptSave, QFileDialog::AnyFile);
}

std::optional<QString> QtDialogs::Folder(const FolderRequest& request) {
    QFileDialog dialog(request.owner);
    dialog.setObjectName(QStringLiteral("FolderDialog"));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    if (!request.prompt.isEmpty()) {
        dialog.setLabelText(QFileDialog::FileName, request.prompt);
    }
    if (!request.folder.isEmpty()) {
        dialog.setDirectory(request.folder);
    }
    if (RunDialog(dialog, request.title) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return QDir::toNativeSeparators(dialog.selectedFiles().constFirst());
}

std::optional<ColorAnswer> QtDialogs::Color(const ColorRequest& request) {
    for (std::size_t i = 0; i < request.customColors.size(); ++i) {
        QColorDialog::setCustomColor(static_cast<int>(i), request.customColors[i]);
    }
    QColorDialog dialog(request.color, request.owner);
    dialog.setObjectName(QStringLiteral("ColorDialog"));
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    if (RunDialog(dialog, request.title) != QDialog::Accepted) {
        return std::nullopt;
    }
    ColorAnswer answer{dialog.selectedColor(), {}};
    for (std::size_t i = 0; i < answer.customColors.size(); ++i) {
        answer.customColors[i] = QColorDialog::customColor(static_cast<int>(i));
    }
    return answer;
}

std::optional<FontChoice> QtDialogs::Font(const FontRequest& request) {
    FontDialog dialog(request.font, request.owner);
    if (RunDialog(dialog, request.title) != QDialog::Accepted) {
        return std::nullopt;
    }
    return dialog.Choice();
}

DialogResponder& Dialogs() {
    static QtDialogs qtDialogs;
    auto* replacement = ServiceSlot<DialogResponder>::Replacement();
    return replacement != nullptr ? *replacement : qtDialogs;
}

} // namespace tavmoor
