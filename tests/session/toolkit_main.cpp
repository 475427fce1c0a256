#include "assets/resources.h"
#include "platform/program_fonts.h"

#include <QApplication>

#include <gtest/gtest.h>

// Windows need an application object for as long as the tests run.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS(); // the build asks for the names, on a machine that may have no display
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen"); // a developer's desktop is left alone
    }
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    zeltrona::assets::initResources();
    zeltrona::platform::useProgramFonts();
    return RUN_ALL_TESTS();
}
