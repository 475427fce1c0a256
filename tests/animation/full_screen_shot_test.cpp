// The full screen on a real X server, one run for each size of the screen. The picture of the screen is kept
// in the folder tests/shots of the build, to be looked at.
#include "tests/animation/full_screen_bench.h"
#include "tests/animation/moving_board.h"

#include <QDir>
#include <QScreen>
#include <QTest>

namespace zeltrona::animation {
namespace {

using test::body;
using test::FullScreenBench;

/// A tick of a play with both teams and a ball.
QImage tickOfAPlay() {
    test::MovingBoard moving;
    for (int i = 0; i < 5; ++i) {
        const auto f = static_cast<float>(i);
        const auto step = static_cast<std::int16_t>(60 * i + 30);
        moving.set.offAnimCur.push_back(body(30 + 62 * f, 240 - 35 * f, std::to_string(4 + i), step));
        moving.set.defAnimCur.push_back(
            body(50 + 58 * f, 180 - 30 * f, std::to_string(10 + i), static_cast<std::int16_t>(330 - step)));
    }
    moving.set.offAnimCur.erase(moving.set.offAnimCur.begin());
    moving.set.defAnimCur.erase(moving.set.defAnimCur.begin());
    moving.frame.offPlayers = moving.set.offAnimCur;
    moving.frame.defPlayers = moving.set.defAnimCur;
    moving.set.ballAnimCur = {test::playerAt(80, 290, "0")};
    moving.frame.triangles = {{250, 300, 0x0000FF}};
    return moving.tick();
}

void keepShot(const QImage& shot) {
    const QDir folder(QStringLiteral(ZELTRONA_BINARY_DIR "/tests/shots"));
    folder.mkpath(QStringLiteral("."));
    shot.save(folder.filePath(QStringLiteral("full_screen_%1x%2.png").arg(shot.width()).arg(shot.height())));
}

TEST(FullScreenShot, CoversTheWholeScreenWithThePictureInTheMiddle) {
    FullScreenBench bench;
    bench.owner.board = tickOfAPlay();
    bench.window->updateFrameCurr(QStringLiteral("2/5"));
    bench.window->showRunning(true);
    bench.window->updatePic();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(bench.window.data()));
    QTest::qWait(200);

    const QScreen& screen = *QApplication::primaryScreen();
    QImage shot = QApplication::primaryScreen()->grabWindow(0).toImage();
    shot.setDevicePixelRatio(1.0);
    keepShot(shot);
    const double ratio = screen.devicePixelRatio();
    ASSERT_EQ(shot.size(), screen.size() * ratio);
    const QColor ground(0x10, 0x12, 0x14);
    for (const QPoint corner : {QPoint(0, 0), QPoint(shot.width() - 1, 0), QPoint(0, shot.height() - 1),
                                QPoint(shot.width() - 1, shot.height() - 1)}) {
        EXPECT_EQ(shot.pixelColor(corner), ground) << corner.x() << ", " << corner.y();
    }
    EXPECT_EQ(bench.window->picScale(), screen.size().width() >= 810 ? 1.4 : 1.0);
    const BoardPicture& pic = bench.control<BoardPicture>("pic");
    EXPECT_NEAR(pic.x() + pic.width() / 2, screen.size().width() / 2, 1);
    // Each pixel of the picture is one pixel of the screen: nothing is stretched a second time.
    const QRect shown(pic.pos() * ratio, pic.size() * ratio);
    EXPECT_EQ(shot.copy(shown).convertToFormat(QImage::Format_RGB32), pic.picture());
}

} // namespace
} // namespace zeltrona::animation
