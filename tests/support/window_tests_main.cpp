#include <gtest/gtest.h>

#include <QApplication>

/// Tests of windows share one application; the platform plugin "offscreen" needs no display.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
