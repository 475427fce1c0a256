// Long use: memory and open handles of the process while the same thing is done over and over. Prints a row
// for every tenth of the way and ends each course with its growth from the second tenth on; the first one
// fills caches. One short pass with --benchmark_min_time given, as the other benchmarks know it; one kind
// alone with its name: frames, redraws, ticks or windows.

#include "animation/draw_animation.h"
#include "animation/frmMainFullScreen.h"
#include "animation/prepare_step.h"
#include "animation/step_players.h"
#include "assets/resources.h"
#include "bench/sample_play.h"
#include "dialogs/frmAbout.h"
#include "dialogs/frmConfig.h"
#include "dialogs/frmConfig1.h"
#include "dialogs/frmHelp.h"
#include "dialogs/frmInputBox.h"
#include "dialogs/frmNotes.h"
#include "dialogs/frmTitle.h"
#include "dialogs/frmTxtMsg.h"
#include "document/frame_store.h"
#include "output/frmDrawPreview.h"
#include "platform/program_fonts.h"
#include "render/redraw.h"
#include "session/frmGameSelect.h"
#include "session/frmMain.h"
#include "session/frmSplash.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>

using namespace zeltrona;

namespace {

struct Usage {
    long kilobytes = 0;
    long handles = 0;
};

Usage usageNow() {
    Usage usage;
    std::ifstream status("/proc/self/statm");
    long pages = 0;
    status >> pages >> pages;
    usage.kilobytes = pages * 4;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        ++usage.handles;
    }
    return usage;
}

/// Does one thing `count` times and prints the curve.
void course(const char* name, int count, const std::function<void(int)>& once) {
    Usage base;
    std::printf("%s, %d times\n", name, count);
    for (int tenth = 1; tenth <= 10; ++tenth) {
        for (int i = count * (tenth - 1) / 10; i < count * tenth / 10; ++i) {
            once(i);
        }
        const Usage now = usageNow();
        base = tenth == 2 ? now : base;
        std::printf("  %3d%%  %8ld KB  %4ld handles\n", tenth * 10, now.kilobytes, now.handles);
    }
    const Usage end = usageNow();
    std::printf("growth %s %ld KB %ld handles\n", name, end.kilobytes - base.kilobytes,
                end.handles - base.handles);
}

std::string storePlay(const QTemporaryDir& folder, int frames) {
    const QString path = folder.filePath(QStringLiteral("play.zpf"));
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(QByteArray::fromStdString(bench::samplePlay(frames)));
    return path.toStdString();
}

void walkFrames(int frames) {
    const QTemporaryDir folder;
    document::PlayFile play(storePlay(folder, frames));
    document::Session session;
    document::FrameRecords records;
    document::loadConfig(play, session, records);
    const auto visit = [&](int i) {
        session.currFrame = static_cast<std::int16_t>(i + 1);
        document::loadFrame(play, session, records, session.currFrame);
    };
    // The keys of a frame are found at its first visit and kept: this course alone may grow, by what they
    // take.
    course("frames_opened", frames, visit);
    course("frames_walked", frames, visit);
    course("frames_saved", frames, [&](int i) {
        visit(i);
        records.balls.front().x += 1;
        document::saveFrame(play, session, records, session.currFrame, false);
    });
}

/// The first of three frames, loaded, with a board of its court.
struct OpenBoard {
    OpenBoard() {
        document::loadConfig(play, session, records);
        document::loadFrame(play, session, records, 1);
        const QSize size = render::boardSizeOf(session.court);
        pic = std::make_unique<render::BoardSurface>(size.width(), size.height());
    }
    render::Board board() { return {*pic, art, {}}; }

    QTemporaryDir folder;
    document::PlayFile play{storePlay(folder, 3)};
    document::Session session;
    document::FrameRecords records;
    render::BoardArt art = render::loadBoardArt();
    std::unique_ptr<render::BoardSurface> pic;
};

void redrawBoards(int count) {
    OpenBoard open;
    render::Board board = open.board();
    course("redraws", count, [&](int) { render::redrawBoard(board, {open.session, open.records}, 0, 0); });
}

/// A clock that nobody winds up.
class StillClock : public animation::AnimTimer {
    void startTicks() override {}
    void stopTicks() override {}
};

void tick(int count) {
    OpenBoard open;
    render::Board board = open.board();
    StillClock clock;
    animation::PlaybackSet set;
    set.animLastFrame = 3;
    course("ticks", count, [&](int i) {
        if (i % 100 == 0) {
            set.animFrame = static_cast<std::int16_t>(1 + i / 100 % 2);
            animation::prepareAnimationStep(set, open.play, open.records.triangles, clock);
        }
        ++set.animTick;
        animation::stepPlayers(set);
        animation::drawAnimationStep(board, {set, open.session, open.records});
    });
}

/// Opened as the user does, over a main window that stays.
void openFullScreens(int count, document::Session& session, const render::BoardArt& art) {
    session::frmMain window(session, art);
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.load();
    window.show();
    auto* entry = window.findChild<QAction*>(QStringLiteral("mnuViewFullScreenAnimation"));
    course("open_frmMainFullScreen", count, [&](int) {
        entry->trigger();
        QCoreApplication::processEvents();
        for (QWidget* one : QApplication::topLevelWidgets()) {
            if (qobject_cast<animation::frmMainFullScreen*>(one) != nullptr) {
                one->close();
            }
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
}

QString helpFile() {
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/ZP.hlp");
}

output::PreviewSource blankPages() {
    return {[] { return std::int16_t{3}; },
            [](std::int16_t) {
                QImage page(1190, 1684, QImage::Format_RGB32);
                page.fill(Qt::white);
                return page;
            },
            QSize(793, 1123)};
}

void openWindows(int count) {
    const QTemporaryDir folder;
    document::Session session;
    session.playFilePath = storePlay(folder, 3);
    document::PlayFile play(session.playFilePath);
    const render::BoardArt art = render::loadBoardArt();
    const auto openAndClose = [](QWidget* window) {
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->show();
        QCoreApplication::processEvents();
        delete window;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    course("open_frmMain", count, [&](int) {
        auto* window = new session::frmMain(session, art);
        window->load();
        openAndClose(window);
    });
    course("open_frmSplash", count, [&](int) { openAndClose(new session::frmSplash); });
    course("open_frmGameSelect", count, [&](int) { openAndClose(new session::frmGameSelect(session)); });
    course("open_frmConfig", count, [&](int) { openAndClose(new dialogs::frmConfig(play, session)); });
    course("open_frmConfig1", count, [&](int) { openAndClose(new dialogs::frmConfig1(play, session)); });
    course("open_frmTitle", count, [&](int) { openAndClose(new dialogs::frmTitle(play, session, nullptr)); });
    course("open_frmNotes", count, [&](int) { openAndClose(new dialogs::frmNotes(play, session, nullptr)); });
    course("open_frmTxtMsg", count, [&](int) { openAndClose(new dialogs::frmTxtMsg(session, nullptr)); });
    course("open_frmInputBox", count,
           [&](int) { openAndClose(new dialogs::frmInputBox(QStringLiteral("Arial"), 238, nullptr)); });
    course("open_frmAbout", count, [&](int) { openAndClose(new dialogs::frmAbout(nullptr)); });
    course("open_frmHelp", count, [&](int) { openAndClose(new dialogs::frmHelp(helpFile(), nullptr)); });
    course("open_frmDrawPreview", count,
           [&](int) { openAndClose(new output::frmDrawPreview(blankPages(), nullptr)); });
    openFullScreens(count, session, art);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    assets::initResources();
    platform::useProgramFonts();
    if (!QFile::exists(helpFile())) {
        std::fprintf(stderr, "the help is missing: %s\n", qPrintable(helpFile()));
        return 1;
    }
    const std::string argument = argc > 1 ? argv[1] : "";
    const bool isShort = argument.starts_with("--benchmark_min_time");
    const auto isAsked = [&](const char* what) { return isShort || argument.empty() || argument == what; };
    if (isAsked("frames")) {
        walkFrames(isShort ? 200 : 10000);
    }
    if (isAsked("redraws")) {
        redrawBoards(isShort ? 1000 : 100000);
    }
    if (isAsked("ticks")) {
        tick(isShort ? 1000 : 1000000);
    }
    if (isAsked("windows")) {
        openWindows(isShort ? 10 : 1000);
    }
    return 0;
}
