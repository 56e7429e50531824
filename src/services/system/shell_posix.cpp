#include "core/files/document_path.h"
#include "core/text/code_page.h"
#include "core/text/text_case.h"
#include "services/system/shell_platform.h"
#include "services/values/native_path_text.h"
#include "services/values/qt_text.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <array>
#include <chrono>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

ShellOutcome Failure(std::string_view path, std::string_view reason) {
    return {false, "\"" + std::string(path) + "\" " + std::string(reason)};
}

/// The native path of something that exists; nothing otherwise.
std::optional<fs::path> FindExisting(std::string_view path) {
    auto native = path.empty() ? std::nullopt : FindNativePath(path);
    std::error_code error;
    return native && fs::exists(*native, error) ? native : std::nullopt;
}

/// Starts a program that outlives this one. What it prints is not for this program's terminal.
bool StartDetached(const QString& program, const QStringList& arguments,
                   const QString& workingFolder = {}) {
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setWorkingDirectory(workingFolder);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

/// Wine's starter; "" when it is not installed. Some systems keep it out of the search path.
QString FindWine() {
    const QString inPath = QStandardPaths::findExecutable(QStringLiteral("wine"));
    return !inPath.isEmpty() ? inPath
                             : QStandardPaths::findExecutable(QStringLiteral("wine64"),
                                                              {QStringLiteral("/usr/lib/wine")});
}

/// True when the desktop has a program registered for CHM files.
bool DesktopOpensHelpFiles() {
    constexpr std::chrono::milliseconds longest{2000};
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (tool.isEmpty()) {
        return false;
    }
    QProcess query;
    query.start(tool, {QStringLiteral("query"), QStringLiteral("default"),
                       QStringLiteral("application/x-chm")});
    if (!query.waitForFinished(static_cast<int>(longest.count()))) {
        query.kill();
        query.waitForFinished();
        return false;
    }
    return !query.readAllStandardOutput().trimmed().isEmpty();
}

class PosixShell final : public Shell {
public:
    ShellOutcome OpenDocument(std::string_view path) override {
        const auto native = FindExisting(path);
        if (!native) {
            return FileMissing(path);
        }
        return QDesktopServices::openUrl(QUrl::fromLocalFile(NativePathText(*native)))
                   ? ShellOutcome()
                   : Failure(path, "cannot be opened: this computer has no program set up for it");
    }

    ShellOutcome OpenAddress(std::string_view address) override {
        const QUrl url =
            QUrl::fromEncoded(QByteArray(address.data(), static_cast<qsizetype>(address.size())));
        return QDesktopServices::openUrl(url)
                   ? ShellOutcome()
                   : Failure(address,
                             "cannot be opened: this computer has no program set up for it");
    }

    ShellOutcome StartProgram(std::string_view path,
                              const std::vector<std::string>& arguments) override {
        const auto native = FindExisting(path);
        if (!native) {
            return FileMissing(path);
        }
        QString program = NativePathText(*native);
        QStringList all;
        if (EndsWithoutCase(path, ".exe")) {
            all.append(program);
            program = FindWine();
            if (program.isEmpty()) {
                return Failure(path, "is a Windows program and needs Wine to run here, which is "
                                     "not installed");
            }
        }
        for (const std::string& argument : arguments) {
            all.append(ToQString(argument));
        }
        return StartDetached(program, all, NativePathText(native->parent_path()))
                   ? ShellOutcome()
                   : Failure(path, "could not be started");
    }

    ShellOutcome OpenHelpFile(std::string_view path) override {
        static constexpr std::array<const char*, 3> viewers{"xchm", "kchmviewer", "okular"};
        const auto native = FindExisting(path);
        if (!native) {
            return FileMissing(path);
        }
        if (DesktopOpensHelpFiles()) {
            return OpenDocument(path);
        }
        for (const char* viewer : viewers) {
            const QString program = QStandardPaths::findExecutable(QLatin1String(viewer));
            if (!program.isEmpty() && StartDetached(program, {NativePathText(*native)})) {
                return {};
            }
        }
        return Failure(path, "cannot be shown: this computer has no program for CHM files");
    }
};

} // namespace

Shell& PlatformShell() {
    static PosixShell shell;
    return shell;
}

} // namespace tavmoor
