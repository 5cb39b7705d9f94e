#include <gtest/gtest.h>

#include <QGuiApplication>

/// Runs the tests of a program that draws: with an application, on a platform that needs no display.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
