#include <gtest/gtest.h>

#include <QApplication>

/// Runs the tests of what opens dialogs of the desktop, on a platform that needs no display.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
