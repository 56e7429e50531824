#include "app/program_application.h"

#include "core/files/runtime_error.h"
#include "core/text/maker.h"
#include "services/dialogs/message_box.h"
#include "services/look/artwork.h"
#include "services/look/theme.h"
#include "services/values/qt_text.h"

#include <cstdlib>

namespace tavmoor {

ProgramApplication::ProgramApplication(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("tavmoor"));
    setApplicationDisplayName(ToQString(ProgramName));
    setQuitOnLastWindowClosed(false);
    setWindowIcon(ArtworkIcon(QStringLiteral("program")));
    theme::Apply(*this);
}

bool ProgramApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        if (!ending_) {
            ReportAndEnd(error.what());
        }
        // Timers go on while the report is open; the project is kept and the end is decided.
        qCritical("%s", error.what());
        return false;
    }
}

void ProgramApplication::ReportAndEnd(const char* report) {
    ending_ = true;
    QString text = ToQString(report);
    if (session_ != nullptr) {
        try {
            const std::string kept = session_->recovery.KeepAndLeave(session_->document);
            if (!kept.empty()) {
                text += QStringLiteral("\n\nYour project was kept in ") + ToQString(kept) +
                        QStringLiteral("\nThe next start offers it.");
            }
        } catch (const std::exception& error) {
            text +=
                QStringLiteral("\n\nYour project could not be kept: ") + ToQString(error.what());
        }
    }
    ShowMessageBox(nullptr, {text, {}, BoxButtons::Ok, BoxIcon::Critical});
    // The event loop may be many levels down, and the windows in a state that nobody knows.
    std::_Exit(EXIT_FAILURE);
}

} // namespace tavmoor
