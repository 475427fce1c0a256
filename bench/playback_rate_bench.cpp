// How many ticks a second the main window delivers at speed 9, and what share of one core they take: with the
// window alone, then with the full screen over it. Runs on whatever screen QT_QPA_PLATFORM gives.

#include "animation/frmMainFullScreen.h"
#include "assets/resources.h"
#include "platform/program_fonts.h"
#include "session/file_names.h"
#include "session/frmMain.h"
#include "session/language.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <cstring>
#include <sys/resource.h>

using namespace zeltrona;

namespace {

/// What speed 9 should hold of the 500 ticks that its 2 ms ask for.
constexpr double kTicksWanted = 450.0;
constexpr int kSamplePlayFrames = 3;

double processorSeconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// Two full teams as bodies on the parquet and three balls, all on their way.
QByteArray fullPlay() {
    QByteArray play(
        "[Config]\r\nbodyType=1\r\ncolorOff=2105536\r\ncolorDef=12607520\r\ncolorOffFont=16777215\r\n"
        "colorDefFont=16777215\r\nline=1\r\ncourt=1\r\ncourtColor=13434879\r\ncourtTexture=1\r\n");
    for (int i = 0; i < 12; ++i) {
        const QByteArray slot = QByteArray::number(i);
        play += "txtoff" + slot + "=" + QByteArray::number(i + 4) + "\r\nskinoff" + slot + "=7381216\r\n";
        play += "txtdef" + slot + "=" + QByteArray::number(i + 4) + "\r\nskindef" + slot + "=7381216\r\n";
    }
    for (int frame = 1; frame <= kSamplePlayFrames; ++frame) {
        const QByteArray n = QByteArray::number(frame);
        play += "[Frame" + n + "]\r\nframe=" + n + "\r\n";
        for (int i = 0; i < 12; ++i) {
            const QByteArray slot = QByteArray::number(i);
            const QByteArray x = QByteArray::number(5 + 25 * i);
            play += "off" + slot + "=" + x + "," + QByteArray::number(frame % 2 == 1 ? 10 : 270) + "\r\n";
            play += "def" + slot + "=" + x + "," + QByteArray::number(frame % 2 == 1 ? 250 : 60) + "\r\n";
        }
        for (int i = 0; i < 3; ++i) {
            play += "Ball" + QByteArray::number(i) + "=" + QByteArray::number(60 + 100 * i) + ","
                    + QByteArray::number(frame % 2 == 1 ? 40 : 300) + ",\r\n";
        }
    }
    return play;
}

void measure(const char* name, const QTimer& timer, int milliseconds) {
    int ticks = 0;
    const auto counting = QObject::connect(&timer, &QTimer::timeout, [&ticks] { ++ticks; });
    QElapsedTimer clock;
    const double processorBefore = processorSeconds();
    clock.start();
    QTimer::singleShot(milliseconds, qApp, [] { QCoreApplication::exit(); }); // quit() would close the window
    QApplication::exec();
    const double seconds = static_cast<double>(clock.nsecsElapsed()) * 1e-9;
    const double share = (processorSeconds() - processorBefore) / seconds;
    QObject::disconnect(counting);
    const double rate = ticks / seconds;
    std::printf("%s on %s: %.0f ticks a second, %.0f %% of one core\n", name,
                qPrintable(QGuiApplication::platformName()), rate, share * 100.0);
    std::printf("ratio %s-450-to-ticks %.3f 1.000\n", name, kTicksWanted / rate);
}

void press(QWidget& window, const char* name) {
    window.findChild<QAbstractButton*>(QLatin1String(name))->click();
}

} // namespace

int main(int argc, char** argv) {
    const bool brief = argc > 1 && std::strncmp(argv[1], "--benchmark_min_time", 20) == 0;
    const int milliseconds = brief ? 300 : 5000;
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    assets::initResources();
    platform::useProgramFonts();
    const render::BoardArt art = render::loadBoardArt();

    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("play.zpf")));
    if (!file.open(QIODevice::WriteOnly) || file.write(fullPlay()) < 0) {
        std::fprintf(stderr, "cannot write the play\n");
        return 1;
    }
    file.close();
    document::Session session;
    session::chooseLanguage(session, 0);
    session.playFilePath = session::toPath(file.fileName());
    auto* window = new session::frmMain(session, art);
    if (window->load()) {
        return 1;
    }
    window->show();
    window->findChild<QLineEdit*>(QStringLiteral("txtAnimSpeed"))->setText(QStringLiteral("9"));
    press(*window, "animCheckLoop");
    press(*window, "cmdAnimPlay");
    const QTimer& timer = *window->findChild<QTimer*>(QStringLiteral("Timer1"));
    measure("window", timer, milliseconds);
    window->findChild<QAction*>(QStringLiteral("mnuViewFullScreenAnimation"))->trigger();
    window->findChild<QLineEdit*>(QStringLiteral("txtAnimSpeed"))->setText(QStringLiteral("9"));
    measure("full-screen", timer, milliseconds);
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
