// Grabs every window to a picture of its own, in both languages, with a light and a dark palette and with
// large letters, so that a change anywhere is seen everywhere. Takes the folder for the pictures; needs an X
// server for true fonts and styles.
#include "assets/resources.h"
#include "platform/program_fonts.h"
#include "platform/themed_icon.h"
#include "session/frmSplash.h"
#include "tests/session/every_window.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMap>
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

/// Every window in both languages; a form that comes again gets a number behind its name.
void grabAll(const QString& theme) {
    for (const int language : {0, 1}) {
        const QString suffix = theme + (language == 0 ? QStringLiteral("_en") : QStringLiteral("_sr"));
        QMap<QString, int> times;
        testing::forEveryWindow(language, [&](QWidget& window) {
            const int time = ++times[window.objectName()];
            const QString number = time == 1 ? QString() : QString::number(time);
            save(window, window.objectName() + number + suffix);
        });
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
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSize(16);
    QApplication::setFont(large);
    grabAll(QStringLiteral("_large"));
    QApplication::setFont(usual);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(darkPalette());
    grabAll(QStringLiteral("_dark"));
    return 0;
}
