#include "settings/final_step/build_window_events.h"

#include "services/controls/status_label.h"
#include "services/dialogs/message_box.h"
#include "services/dialogs/shell_report.h"
#include "services/system/wait_loop.h"
#include "services/values/qt_text.h"

#include <QProgressBar>

namespace tavmoor {

namespace {

/// Steps of the progress bar: finer than what can be seen.
constexpr int ProgressSteps = 1000;

/// Such as "12.3 MB of 48.0 MB, 26 %"; both sizes have the unit of the whole.
QString ProgressText(std::uint64_t done, std::uint64_t total) {
    constexpr double Kilobyte = 1024;
    constexpr double Megabyte = Kilobyte * 1024;
    const auto whole = static_cast<double>(total);
    const bool large = whole >= Megabyte;
    const auto size = [large](double bytes) {
        return QString::number(bytes / (large ? Megabyte : Kilobyte), 'f', 1) +
               (large ? QLatin1String(" MB") : QLatin1String(" KB"));
    };
    const auto percent = total == 0 ? 100 : done * 100 / total;
    return QStringLiteral("%1 of %2, %3 %")
        .arg(size(static_cast<double>(done)), size(whole))
        .arg(percent);
}

} // namespace

void WindowBuildEvents::Status(std::string_view text) {
    controls_.status->SetText(ToQString(text));
}

bool WindowBuildEvents::Ask(BuildQuestion /*question*/, std::string_view text) {
    return ShowMessageBox(controls_.window,
                          {ToQString(text), {}, BoxButtons::YesNo, BoxIcon::Question}) ==
           BoxAnswer::Yes;
}

void WindowBuildEvents::ResetProgress() {
    controls_.progress->setRange(0, ProgressSteps);
    controls_.progress->setValue(0);
    controls_.progress->setFormat(QString());
}

void WindowBuildEvents::PackageProgress(std::uint64_t done, std::uint64_t total) {
    QProgressBar& bar = *controls_.progress;
    bar.setValue(total == 0 ? ProgressSteps : static_cast<int>(done * ProgressSteps / total));
    bar.setFormat(ProgressText(done, total));
}

void WindowBuildEvents::PlacingProgress(std::uint64_t done, std::uint64_t total) {
    PackageProgress(done, total);
}

void WindowBuildEvents::LetEventsRun() {
    tavmoor::LetEventsRun();
}

void WindowBuildEvents::Wait(std::chrono::milliseconds time) {
    WaitFor(time);
}

void WindowBuildEvents::StartAutorun(std::string_view path) {
    ReportFailure(controls_.window, SystemShell().StartProgram(path, {}));
}

} // namespace tavmoor
