#include "app/program_application.h"
#include "app/start_program.h"
#include "core/session/run_marker.h"
#include "first_paint.h"

/// The program as it starts, up to the painted main window; then it ends at once.
int main(int argc, char** argv) {
    tavmoor::ProgramApplication application(argc, argv);
    tavmoor::ProgramSession session;
    tavmoor::WindowRegistry windows;
    tavmoor::bench::EndAtFirstPaintOf(application, QStringLiteral("Form1"));
    const tavmoor::RunMarker marker;
    tavmoor::StartProgram({session, windows}, marker);
    return QApplication::exec();
}
