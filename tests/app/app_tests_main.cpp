#include "app/program_application.h"

#include <gtest/gtest.h>

/// The tests run within the program's own application, whose boundary of errors they try.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const tavmoor::ProgramApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
