#include "app/program_application.h"
#include "app/run_program.h"
#include "core/files/program_folder.h"
#include "first_paint.h"

/// The program as it starts, up to the painted main window; then it ends at once.
int main(int argc, char** argv) {
    tavmoor::ProgramApplication application(argc, argv);
    tavmoor::bench::EndAtFirstPaintOf(application, QStringLiteral("Form1"));
    return tavmoor::RunProgram(application, tavmoor::ProgramFolder);
}
