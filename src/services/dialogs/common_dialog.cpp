#include "services/dialogs/common_dialog.h"

#include "core/files/document_path.h"
#include "core/files/runtime_error.h"
#include "core/files/system_folders.h"
#include "core/text/path_text.h"
#include "services/dialogs/custom_colors.h"
#include "services/dialogs/message_box.h"
#include "services/values/color_value.h"
#include "services/values/native_path_text.h"
#include "services/values/qt_text.h"

namespace tavmoor {

namespace {

// Lengths of the buffers, each without its closing NUL.
constexpr std::size_t LongestFile = 254;
constexpr std::size_t LongestFolder = 259;

/// Hooks and templates of file dialogs, which are nothing but addresses.
constexpr std::uint32_t FileFlagsLeftOut = 224;
constexpr std::uint32_t ColorFlags = 15;
/// Font dialogs show underline, strikeout and colour.
constexpr std::uint32_t FontEffects = 0x100;

/// Where a dialog begins, in native form.
struct Beginning {
    std::filesystem::path folder;
    std::filesystem::path file; ///< a name without folder
};

bool IsFolder(const std::filesystem::path& path) {
    std::error_code ignored; // what cannot be looked at is no folder to begin in
    return std::filesystem::is_directory(path, ignored);
}

/// The beginning that a folder or a file path asks for; nothing when its folder does not exist.
std::optional<Beginning> FindBeginning(const std::string& path) {
    const auto native = path.empty() ? std::nullopt : FindNativePath(path);
    if (!native) {
        return std::nullopt;
    }
    if (IsFolder(*native)) {
        return Beginning{*native, {}};
    }
    if (IsFolder(native->parent_path())) {
        return Beginning{native->parent_path(), native->filename()};
    }
    return std::nullopt;
}

Beginning BeginningFor(const std::string& initDir) {
    if (auto asked = FindBeginning(initDir)) {
        return *asked;
    }
    return {ProgramFile().parent_path(), {}};
}

QString ExtensionWithoutDot(const std::string& extension) {
    const QString text = ToQString(extension);
    return text.startsWith(u'.') ? text.sliced(1) : text;
}

/// Why a path cannot go into the document; "" when it can.
QString ObjectionTo(const QString& path, const std::optional<std::string>& document,
                    std::size_t longest) {
    if (!document) {
        const QString objection = CodePageObjection(path);
        return objection.isEmpty()
                   ? QStringLiteral("A name with a backslash cannot be stored in a project.")
                   : objection;
    }
    if (document->size() > longest) {
        return QStringLiteral("A path can have %1 characters at most.").arg(longest);
    }
    return {};
}

} // namespace

void CommonDialog::ShowOpen() {
    RunFileDialog(&DialogResponder::OpenFile);
}

void CommonDialog::ShowSave() {
    if (!RunFileDialog(&DialogResponder::SaveFile)) {
        ThrowIfCancelIsError("ShowSave");
    }
}

/// @return false when the dialog was cancelled; the file properties are empty then
bool CommonDialog::RunFileDialog(FileDialogMethod method) {
    const auto answer = (Dialogs().*method)(MakeFileRequest());
    const auto path = answer ? Accept(answer->path, LongestFile) : std::nullopt;
    FileName = path.value_or("");
    FileTitle = FileNameOf(FileName);
    if (path) {
        FilterIndex = answer->filterIndex;
    }
    return path.has_value();
}

FileRequest CommonDialog::MakeFileRequest() const {
    Beginning begin = BeginningFor(InitDir);
    const std::string name = FileName.substr(0, LongestFile);
    if (IsAbsoluteDocumentPath(name)) {
        begin = FindBeginning(name).value_or(begin);
    } else if (!name.empty()) {
        begin.file = NativePath(name);
    }
    FileRequest request;
    request.owner = hOwner;
    request.title = ToQString(DialogTitle);
    request.filter = ToQString(Filter);
    request.filterIndex = FilterIndex < 1 ? 1 : FilterIndex;
    request.folder = NativePathText(begin.folder);
    request.file = NativePathText(begin.file);
    request.defaultExtension = ExtensionWithoutDot(DefaultExt);
    request.flags = static_cast<std::uint32_t>(flags) & ~FileFlagsLeftOut;
    for (const auto& folder : SidebarFolders) {
        request.sidebarFolders << NativePathText(folder);
    }
    return request;
}

void CommonDialog::ShowColor() {
    ColorRequest request;
    request.owner = hOwner;
    request.title = ToQString(DialogTitle);
    request.color = ToQColor(RGBResult);
    request.flags = static_cast<std::uint32_t>(flags) & ColorFlags;
    if (const auto color = AskWithCustomColors(request)) {
        RGBResult = ToColorValue(*color);
    } else {
        ThrowIfCancelIsError("ShowColor");
    }
}

void CommonDialog::ShowFont() {
    FontRequest request;
    request.owner = hOwner;
    request.title = ToQString(DialogTitle);
    request.font = {ToQString(FontName), FontSize,           Bold, Italic, Underline,
                    StrikeThru,          ToQColor(RGBResult)};
    request.flags = static_cast<std::uint32_t>(flags) | FontEffects;
    const auto font = Dialogs().Font(request);
    if (!font || !AcceptText(font->family)) {
        ThrowIfCancelIsError("ShowFont");
        return;
    }
    FontName = FromQString(font->family);
    FontSize = font->points;
    Bold = font->bold;
    Italic = font->italic;
    Underline = font->underline;
    StrikeThru = font->strikeOut;
    if (font->color != request.font.color) {
        RGBResult = ToColorValue(font->color);
    }
}

void CommonDialog::ShowFolder() {
    lastFolder_.clear();
    FolderRequest request;
    request.owner = hOwner;
    request.title = ToQString(DialogTitle);
    request.prompt = ToQString(DialogPrompt);
    request.folder = NativePathText(BeginningFor(InitDir).folder);
    request.flags = static_cast<std::uint32_t>(flags);
    if (const auto folder = Dialogs().Folder(request)) {
        lastFolder_ = Accept(*folder, LongestFolder).value_or("");
    }
    InitDir.clear();
    DialogTitle.clear();
}

void CommonDialog::ThrowIfCancelIsError(const char* dialog) const {
    if (CancelError) {
        throw RuntimeError(ErrorNumber::InvalidCall, std::string(dialog) + " was cancelled");
    }
}

std::optional<std::string> CommonDialog::Accept(const QString& path, std::size_t longest) const {
    auto document = FindDocumentPath(NativePathOf(path));
    const QString objection = ObjectionTo(path, document, longest);
    if (!objection.isEmpty()) {
        Refuse(path, objection);
        return std::nullopt;
    }
    return document;
}

bool CommonDialog::AcceptText(const QString& text) const {
    const QString objection = CodePageObjection(text);
    if (!objection.isEmpty()) {
        Refuse(text, objection);
    }
    return objection.isEmpty();
}

void CommonDialog::Refuse(const QString& chosen, const QString& objection) const {
    ShowMessageBox(hOwner, {QStringLiteral("\"%1\" cannot be used.\n%2").arg(chosen, objection),
                            {},
                            BoxButtons::Ok,
                            BoxIcon::Warning});
}

} // namespace tavmoor
