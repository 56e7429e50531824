#include "app/program_application.h"
#include "app/start_program.h"

#include "core/files/runtime_error.h"
#include "core/session/run_marker.h"
#include "services/dialogs/message_box.h"
#include "services/values/qt_text.h"

#include <cstdlib>

int main(int argc, char** argv) {
    tavmoor::ProgramApplication application(argc, argv);
    tavmoor::ProgramSession session;
    tavmoor::WindowRegistry windows;
    application.SetSession(&session);
    const tavmoor::RunMarker marker;
    try {
        tavmoor::StartProgram({session, windows}, marker);
    } catch (const tavmoor::RuntimeError& error) {
        tavmoor::ShowMessageBox(nullptr, {tavmoor::ToQString(error.what()), {}});
        return EXIT_FAILURE;
    }
    return QApplication::exec();
}
