#include "core/files/document_path.h"
#include "services/dialogs/common_dialog.h"
#include "services/dialogs/message_box.h"
#include "services/system/wait_loop.h"
#include "services/values/native_path_text.h"
#include "services/values/qt_text.h"

#include <array>

// The dialogs of the system's shell, its printer and its about box, and the dialogs by their
// numbers: the program's own windows use none of them.

namespace tavmoor {

namespace {

QString NameOf(ShellDialog dialog) {
    switch (dialog) {
    case ShellDialog::Help:
        return QStringLiteral("help");
    case ShellDialog::Format:
        return QStringLiteral("format");
    case ShellDialog::ObjectProperties:
        return QStringLiteral("properties");
    case ShellDialog::Restart:
        return QStringLiteral("restart");
    case ShellDialog::Run:
        return QStringLiteral("run");
    case ShellDialog::ShutDown:
        return QStringLiteral("shut down");
    case ShellDialog::FindFiles:
        return QStringLiteral("find files");
    }
    return {};
}

} // namespace

void CommonDialog::SetAction(std::int16_t number) {
    static constexpr std::array<void (CommonDialog::*)(), 14> dialogs{
        &CommonDialog::ShowOpen,  &CommonDialog::ShowSave,       &CommonDialog::ShowColor,
        &CommonDialog::ShowFont,  &CommonDialog::ShowPrinter,    &CommonDialog::ShowHelp,
        &CommonDialog::ShowAbout, &CommonDialog::ShowFolder,     &CommonDialog::ShowFormat,
        &CommonDialog::ShowIcon,  &CommonDialog::ShowObjectProp, &CommonDialog::ShowRestart,
        &CommonDialog::ShowRun,   &CommonDialog::ShowShutDown};
    if (number >= 0 && static_cast<std::size_t>(number) < dialogs.size()) {
        (this->*dialogs[static_cast<std::size_t>(number)])();
    }
}

void CommonDialog::ShowPrinter() {
    Dialogs().Printer({hOwner, ToQString(DialogTitle), static_cast<std::uint32_t>(flags)});
}

void CommonDialog::ShowHelp() {
    Shell(ShellDialog::Help, HelpFile);
}

void CommonDialog::ShowAbout() {
    Dialogs().About({hOwner, ToQString(AppName), ToQString(DialogTitle), hIcon});
}

void CommonDialog::ShowFormat() {
    Shell(ShellDialog::Format, InitDir);
}

void CommonDialog::ShowIcon() {
    const auto path = FindNativePath(FileName);
    hIcon = path ? Dialogs().FileIcon(NativePathText(*path), iconSize_) : QIcon();
}

void CommonDialog::ShowObjectProp() {
    Shell(ShellDialog::ObjectProperties, FileName);
}

void CommonDialog::ShowRestart() {
    Shell(ShellDialog::Restart, {});
}

void CommonDialog::ShowRun() {
    Shell(ShellDialog::Run, {});
}

void CommonDialog::ShowShutDown() {
    Shell(ShellDialog::ShutDown, {});
}

void CommonDialog::ShowFindFiles() {
    Shell(ShellDialog::FindFiles, InitDir);
}

void CommonDialog::Shell(ShellDialog dialog, std::string_view path) {
    ShellRequest request;
    request.dialog = dialog;
    request.owner = hOwner ? static_cast<std::uintptr_t>(hOwner->window()->winId()) : 0;
    request.title = ToQString(DialogTitle).toStdWString();
    request.prompt = ToQString(DialogPrompt).toStdWString();
    request.path = FindNativePath(path).value_or(std::filesystem::path());
    request.command = static_cast<std::uint32_t>(HelpCommand);
    request.key = ToQString(HelpKey).toStdWString();
    request.flags = static_cast<std::uint32_t>(flags);
    const RunningLoop running; // of the shell
    if (!Dialogs().Shell(request)) {
        ShowMessageBox(hOwner, {QStringLiteral("The \"%1\" dialog is not available on this system.")
                                    .arg(NameOf(dialog)),
                                {},
                                BoxButtons::Ok,
                                BoxIcon::Information});
    }
}

} // namespace tavmoor
