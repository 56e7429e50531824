#include "app/program_application.h"
#include "app/run_program.h"
#include "core/files/program_folder.h"

int main(int argc, char** argv) {
    tavmoor::ProgramApplication application(argc, argv);
    return tavmoor::RunProgram(application, tavmoor::ProgramFolder);
}
