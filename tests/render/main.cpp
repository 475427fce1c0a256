#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen"); // the build lists the cases without a display
    }
    const QGuiApplication application(argc, argv); // fonts need one
    return RUN_ALL_TESTS();
}
