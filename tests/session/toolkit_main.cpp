#include "platform/program_fonts.h"

#include <QApplication>

#include <gtest/gtest.h>

// Windows need an application object for as long as the tests run.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    zeltrona::platform::useProgramFonts();
    return RUN_ALL_TESTS();
}
