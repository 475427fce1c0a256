// Grabs every window to a picture of its own, in both languages and in a light and a dark palette, so that a
// change anywhere is seen everywhere. Takes the folder for the pictures; needs an X server for true fonts and
// styles.
#include "assets/resources.h"
#include "dialogs/frmAbout.h"
#include "dialogs/frmConfig.h"
#include "dialogs/frmConfig1.h"
#include "dialogs/frmHelp.h"
#include "dialogs/frmInputBox.h"
#include "dialogs/frmNotes.h"
#include "dialogs/frmTitle.h"
#include "dialogs/frmTxtMsg.h"
#include "platform/program_folder.h"
#include "platform/program_fonts.h"
#include "platform/themed_icon.h"
#include "session/frmGameSelect.h"
#include "session/frmSplash.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
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

void grabDialogs(int language, const QString& suffix) {
    QTemporaryDir plays;
    document::Session session;
    session::chooseLanguage(session, language);
    document::PlayFile play(plays.filePath(QStringLiteral("play.zpf")).toStdString());
    const auto grab = [&suffix](QWidget& form) { save(form, form.objectName() + suffix); };
    dialogs::frmConfig teams(play, session);
    grab(teams);
    dialogs::frmConfig1 court(play, session);
    grab(court);
    dialogs::frmTitle title(play, session, nullptr);
    grab(title);
    dialogs::frmNotes notes(play, session, nullptr);
    grab(notes);
    dialogs::frmTxtMsg notice(session, nullptr);
    grab(notice);
    dialogs::frmInputBox prompt(QStringLiteral("Arial"), 238, nullptr);
    grab(prompt);
    dialogs::frmAbout about(nullptr);
    grab(about);
    dialogs::frmHelp help(QStringLiteral(ZELTRONA_BINARY_DIR "/bin/ZP.hlp"), nullptr);
    help.setAttribute(Qt::WA_DeleteOnClose, false);
    grab(help);
}

/// A sample play on its third frame, as the README shows it.
void grabSample(const QString& name) {
    QFile file(QStringLiteral(ZELTRONA_SOURCE_DIR "/assets/Files/%1.zpf").arg(name));
    file.open(QIODevice::ReadOnly);
    testing::OpenPlay play(file.readAll().toStdString());
    testing::click(play.window(), QStringLiteral("cmdSeqNoUp"));
    testing::click(play.window(), QStringLiteral("cmdSeqNoUp"));
    play.window().setWindowTitle(QStringLiteral("Zeltrona - %1.zpf").arg(name));
    save(play.window(), QStringLiteral("board_") + name);
}

void grabAll(const QString& theme) {
    for (const int language : {0, 1}) {
        const QString suffix = theme + (language == 0 ? QStringLiteral("_en") : QStringLiteral("_sr"));
        grabSelection(language, suffix);
        grabBoards(language, suffix);
        grabDialogs(language, suffix);
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
    for (const char* name : {"Horns", "Practice-stations", "Pick-and-roll"}) {
        grabSample(QLatin1String(name));
    }
    grabAll(QString());
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(darkPalette());
    grabAll(QStringLiteral("_dark"));
    return 0;
}
