#include "assets/resources.h"
#include "platform/program_fonts.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen"); // as the program itself does
    const QGuiApplication application(argc, argv);
    zeltrona::assets::initResources();
    zeltrona::platform::useProgramFonts();
    return RUN_ALL_TESTS();
}
