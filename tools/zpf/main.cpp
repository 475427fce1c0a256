#include "assets/resources.h"
#include "tools/zpf/command.h"

#include <QGuiApplication>

#include <iostream>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen"); // pictures need fonts and no screen
    const QGuiApplication application(argc, argv);
    zeltrona::assets::initResources();
    const QStringList words = QGuiApplication::arguments().mid(1);
    return static_cast<int>(zeltrona::zpf::runCommandLine(words, {std::cout, std::cerr}));
}
