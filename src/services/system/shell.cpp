#include "services/system/shell.h"

#include "core/files/file_store.h"
#include "core/files/runtime_error.h"
#include "core/text/path_text.h"
#include "services/system/service_slot.h"
#include "services/system/shell_platform.h"
#include "services/values/qt_text.h"

#include <QUrl>

namespace tavmoor {

namespace {

ShellOutcome Refused(std::string_view text, std::string_view address) {
    return {false, std::string(text) + ": \"" + std::string(address) + "\""};
}

bool IsWebAddress(const QUrl& url) {
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https"));
}

} // namespace

ShellOutcome FileMissing(std::string_view path) {
    return {false, std::string(ErrorText(ErrorNumber::FileNotFound)) + ": " + std::string(path)};
}

Shell& SystemShell() {
    auto* replacement = ServiceSlot<Shell>::Replacement();
    return replacement != nullptr ? *replacement : PlatformShell();
}

ShellOutcome OpenWebPage(std::string_view address) {
    const QUrl url = QUrl::fromUserInput(ToQString(address));
    if (!IsWebAddress(url)) {
        return Refused("This is no address of a web page", address);
    }
    return SystemShell().OpenAddress(url.toEncoded().toStdString());
}

ShellOutcome WriteMail(std::string_view address, std::string_view subject) {
    const QByteArray to = QUrl::toPercentEncoding(ToQString(address).trimmed(), "@");
    if (!to.contains('@')) {
        return Refused("This is no mail address", address);
    }
    return SystemShell().OpenAddress("mailto:" + to.toStdString() + "?subject=" +
                                     QUrl::toPercentEncoding(ToQString(subject)).toStdString());
}

ShellOutcome OpenHelp(std::string_view programFolder) {
    const std::string folder = WithBackslash(programFolder);
    const std::string helpFile = folder + "help.chm";
    if (FileExists(helpFile) && SystemShell().OpenHelpFile(helpFile).ok) {
        return {};
    }
    return SystemShell().OpenDocument(folder + "help\\index.html");
}

} // namespace tavmoor
