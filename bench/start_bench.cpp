// From the start of the program to a board on the screen, the splash's own time left out: the application
// with its fonts and pictures, the selection window, then the main window with a sample play. Reports
// milliseconds.

#include "assets/resources.h"
#include "bench/sample_play.h"
#include "platform/program_fonts.h"
#include "platform/themed_icon.h"
#include "session/file_names.h"
#include "session/frmGameSelect.h"
#include "session/frmMain.h"
#include "session/frmSplash.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

using namespace zeltrona;

namespace {

constexpr int kFrames = 10;

double milliseconds(const QElapsedTimer& clock) {
    return static_cast<double>(clock.nsecsElapsed()) * 1e-6;
}

/// The time of one station; the next one begins now.
double report(const char* what, QElapsedTimer& clock) {
    const double taken = milliseconds(clock);
    std::printf("%-32s %7.1f ms\n", what, taken);
    clock.restart();
    return taken;
}

void paint(QWidget& window) {
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.show();
    QApplication::processEvents();
    window.repaint();
}

bool writePlay(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly)
           && file.write(QByteArray::fromStdString(bench::samplePlay(kFrames))) > 0;
}

} // namespace

int main(int, char** argv) {
    QElapsedTimer clock;
    clock.start();
    int argumentCount = 1;
    QApplication application(argumentCount, argv);
    assets::initResources();
    platform::useProgramFonts();
    platform::useAccent();
    const render::BoardArt art = render::loadBoardArt();
    double total = report("application, fonts, pictures", clock);

    session::frmSplash splash;
    paint(splash);
    total += report("frmSplash", clock);

    document::Session session;
    session::frmGameSelect select(session);
    paint(select);
    total += report("frmGameSelect", clock);

    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("play.zpf"));
    if (!writePlay(path)) {
        return 1;
    }
    session.playFilePath = session::toPath(path);
    clock.restart();
    session::frmMain board(session, art);
    if (board.load()) {
        return 1;
    }
    paint(board);
    total += report("frmMain with its board", clock);
    std::printf("%-32s %7.1f ms\n", "start to board", total);
    return 0;
}
