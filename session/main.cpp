#include "assets/resources.h"
#include "document/session.h"
#include "platform/program_folder.h"
#include "platform/program_fonts.h"
#include "platform/themed_icon.h"
#include "render/board_art.h"
#include "session/window_road.h"

#include <QApplication>
#include <QIcon>

using namespace zeltrona;

int main(int, char** argv) {
    // The program takes no arguments, so the toolkit gets none either.
    int argumentCount = 1;
    QApplication application(argumentCount, argv);
    QApplication::setApplicationName(QStringLiteral("Zeltrona"));
    QApplication::setApplicationVersion(QStringLiteral(ZELTRONA_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("zeltrona"));
    assets::initResources();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/art/zeltrona.svg")));
    platform::useProgramFonts();
    platform::useAccent();
    platform::beginInOwnPlays();

    document::Session session;
    const render::BoardArt art = render::loadBoardArt();
    session::WindowRoad road(session, art);
    QObject::connect(&road, &session::WindowRoad::failed, &application,
                     [](int exitCode) { QCoreApplication::exit(exitCode); });
    road.showSplash();
    return QApplication::exec();
}
