#include "services/dialogs/shell_report.h"

#include "services/dialogs/message_box.h"
#include "services/values/qt_text.h"

namespace tavmoor {

void ReportFailure(QWidget* owner, const ShellOutcome& outcome) {
    if (!outcome.ok) {
        ShowMessageBox(owner, {ToQString(outcome.message), {}, BoxButtons::Ok, BoxIcon::Warning});
    }
}

void OpenHelpOrTell(QWidget* owner, std::string_view programFolder) {
    ReportFailure(owner, OpenHelp(programFolder));
}

} // namespace tavmoor
