// Grabs every window to a picture of its own, in both languages and in a light and a dark palette, so that a
// change anywhere is seen everywhere. Takes the folder for the pictures; needs an X server for true fonts and
// styles.
#include "assets/resources.h"
#include "platform/program_fonts.h"
#include "platform/themed_icon.h"
#include "session/frmGameSelect.h"
#include "session/frmSplash.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QApplication>
#include <QDir>
#include <QTest>

#include <cstdio>

namespace {

using namespace zeltrona;

QString folder;

void save(QWidget& window, const QString& name) {
    window.show();
    testing::settle();
    QTest::qWait(50);
    window.grab().save(folder + QLatin1Char('/') + name + QStringLiteral(".png"));
}

QPalette darkPalette() {
    QPalette dark(QColor(0x2B, 0x2D, 0x30));
    dark.setColor(QPalette::Highlight, QColor::fromRgba(platform::kAccent));
    return dark;
}

void grabSelection(int language, const QString& suffix) {
    document::Session session;
    session::chooseLanguage(session, language);
    session::frmGameSelect window(session);
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    save(window, QStringLiteral("frmGameSelect") + suffix);
}

void grabBoards(int language, const QString& suffix) {
    for (const int court : {1, 3}) {
        testing::OpenPlay play(testing::playOnCourt(court), language);
        save(play.window(), QStringLiteral("frmMain_court%1").arg(court) + suffix);
    }
    testing::OpenPlay bodies(testing::playWithBodies(), language);
    save(bodies.window(), QStringLiteral("frmMain_bodies") + suffix);
}

void grabAll(const QString& theme) {
    for (const int language : {0, 1}) {
        const QString suffix = theme + (language == 0 ? QStringLiteral("_en") : QStringLiteral("_sr"));
        grabSelection(language, suffix);
        grabBoards(language, suffix);
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    folder = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(folder);
    assets::initResources();
    platform::useProgramFonts();
    platform::useAccent();
    QApplication::setQuitOnLastWindowClosed(false);

    session::frmSplash splash;
    splash.setAttribute(Qt::WA_DeleteOnClose, false);
    save(splash, QStringLiteral("frmSplash"));
    grabAll(QString());
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(darkPalette());
    grabAll(QStringLiteral("_dark"));
    return 0;
}
