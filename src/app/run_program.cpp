#include "app/run_program.h"

#include "app/program_application.h"
#include "app/start_program.h"
#include "core/files/runtime_error.h"
#include "core/session/run_marker.h"
#include "services/dialogs/message_box.h"
#include "services/values/qt_text.h"

#include <cstdlib>

namespace tavmoor {

int RunProgram(ProgramApplication& application, const std::function<std::string()>& programFolder) {
    ProgramSession session;
    WindowRegistry windows;
    const RunMarker marker;
    application.SetSession(&session);
    int result = EXIT_FAILURE;
    try {
        StartProgram({session, windows}, marker, programFolder);
        result = QApplication::exec();
    } catch (const RuntimeError& error) {
        ShowMessageBox(nullptr, {ToQString(error.what()), {}});
    }
    application.SetSession(nullptr);
    return result;
}

} // namespace tavmoor
