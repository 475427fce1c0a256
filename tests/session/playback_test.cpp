#include "animation/draw_animation.h"
#include "animation/prepare_step.h"
#include "animation/step_players.h"
#include "document/frame_store.h"
#include "session/file_names.h"
#include "tests/session/playback_bench.h"

#include <QCheckBox>
#include <QTest>

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

using testing::control;
using testing::expectedBoard;
using testing::OpenPlayback;

/// The board in a tick of a step, worked out apart from any window.
QImage expectedTick(const std::string& path, std::int16_t animFrame, int ticks) {
    class NoClock : public animation::AnimTimer {
        void startTicks() override {}
        void stopTicks() override {}
    } clock;
    const document::PlayFile play(path);
    document::Session session;
    document::FrameRecords records;
    document::loadConfig(play, session, records);
    document::loadFrame(play, session, records, 1);
    animation::PlaybackSet set;
    set.animFrame = animFrame;
    set.animLastFrame = document::countFrames(play);
    animation::prepareAnimationStep(set, play, records.triangles, clock);
    for (int i = 0; i < ticks; ++i) {
        ++set.animTick;
        animation::stepPlayers(set);
    }
    const QSize size = render::boardSizeOf(session.court);
    render::BoardSurface surface(size.width(), size.height());
    render::Board board{surface, testing::boardArt(), {}};
    animation::drawAnimationStep(board, {set, session, records});
    return surface.image();
}

TEST(Playback, AFreshWindowStandsStillAtSpeedThree) {
    OpenPlayback play;
    EXPECT_FALSE(play.timer().isActive());
    EXPECT_EQ(play.timer().interval(), 50) << "the load writes the digit, and the interval follows";
    EXPECT_EQ(play.timer().timerType(), Qt::PreciseTimer);
    EXPECT_EQ(play.speed(), "3");
}

TEST(Playback, PlayStartsTheTimerAndTheNextTickShows) {
    OpenPlayback play;
    play.press("cmdAnimPlay");
    EXPECT_TRUE(play.timer().isActive());
    EXPECT_EQ(play.timer().interval(), 50);
    EXPECT_EQ(play.board(), expectedBoard(toPath(play.path()), 1))
        << "nothing is painted before the first tick";
    play.tick();
    EXPECT_EQ(play.counter(), "1/3");
    EXPECT_EQ(play.board(), expectedTick(toPath(play.path()), 1, 1));
    play.tick(9);
    EXPECT_EQ(play.board(), expectedTick(toPath(play.path()), 1, 10));
}

TEST(Playback, APlayWithBodiesTicksWithBodies) {
    OpenPlayback play(testing::playWithBodies());
    play.press("cmdAnimPlay");
    play.tick(7);
    EXPECT_EQ(play.board(), expectedTick(toPath(play.path()), 1, 7));
}

TEST(Playback, ItRunsToTheEndAndLeavesTheEditorWhereItWas) {
    OpenPlayback play;
    play.press("cmdAnimPlay");
    EXPECT_GT(play.run(), 60);
    EXPECT_EQ(play.counter(), "3/3");
    EXPECT_EQ(play.session().currFrame, 1);
    EXPECT_EQ(play.txtSeq(), "1 of 3");
    play.press("cmdCurveShowHide");
    play.press("cmdCurveShowHide");
    EXPECT_NE(play.board(), expectedTick(toPath(play.path()), 2, 500)) << "a redraw brings the editor back";
}

TEST(Playback, PauseStopsAndGoesOnInTheSameTick) {
    OpenPlayback play;
    play.press("cmdAnimPlay");
    play.tick(3);
    play.press("cmdAnimPause");
    EXPECT_FALSE(play.timer().isActive());
    play.press("cmdAnimPause");
    EXPECT_TRUE(play.timer().isActive());
    play.tick();
    EXPECT_EQ(play.board(), expectedTick(toPath(play.path()), 1, 4));
}

TEST(Playback, StopPutsTheBoardOnFrameOne) {
    OpenPlayback play;
    play.press("cmdSeqNoUp");
    play.press("cmdSeqNoUp");
    play.press("cmdAnimPlay");
    play.tick(3);
    play.press("cmdAnimStop");
    EXPECT_FALSE(play.timer().isActive());
    EXPECT_EQ(play.session().currFrame, 1);
    EXPECT_EQ(play.txtSeq(), "1 of 3");
    EXPECT_EQ(play.board(), expectedBoard(toPath(play.path()), 1));
}

TEST(Playback, JumpsLeadToTheirStepAndKeepPlaying) {
    OpenPlayback play;
    const std::string path = toPath(play.path());
    play.press("cmdAnimLast");
    play.tick();
    EXPECT_EQ(play.counter(), "2/3");
    EXPECT_EQ(play.board(), expectedTick(path, 2, 1));
    play.press("cmdAnimFirst");
    play.tick(2);
    EXPECT_EQ(play.board(), expectedTick(path, 1, 2));
    play.press("cmdAnimNext");
    play.tick();
    EXPECT_EQ(play.board(), expectedTick(path, 2, 1));
    play.press("cmdAnimPrev");
    play.tick();
    EXPECT_EQ(play.board(), expectedTick(path, 1, 1));
    EXPECT_TRUE(play.timer().isActive());
    play.press("cmdAnimNext");
    play.press("cmdAnimNext");
    EXPECT_FALSE(play.timer().isActive()) << "the last frame";
    EXPECT_EQ(play.counter(), "1/3") << "no tick has written it";
}

TEST(Playback, SpeedButtonsAndTypingSetTheInterval) {
    OpenPlayback play;
    play.press("cmdAnimPlay");
    play.press("cmdAnimUp");
    EXPECT_EQ(play.speed(), "4");
    EXPECT_EQ(play.timer().interval(), 20);
    play.press("cmdAnimDown");
    play.press("cmdAnimDown");
    EXPECT_EQ(play.speed(), "2");
    EXPECT_EQ(play.timer().interval(), 80);
    auto& box = control<QLineEdit>(play.window(), QStringLiteral("txtAnimSpeed"));
    box.setFocus();
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_9);
    EXPECT_EQ(play.speed(), "9");
    EXPECT_EQ(play.timer().interval(), 2);
    QTest::keyClick(&box, Qt::Key_0);
    EXPECT_EQ(play.speed(), "3") << "90 is no speed";
    EXPECT_EQ(play.timer().interval(), 50);
    QTest::keyClick(&box, Qt::Key_7);
    EXPECT_EQ(play.speed(), "7") << "what is typed next replaces the 3";
    QTest::keyClick(&box, Qt::Key_X);
    EXPECT_EQ(play.speed(), "3");
}

TEST(Playback, ANumberThatIsNoDigitSilencesTheTimer) {
    OpenPlayback play;
    play.press("cmdAnimPlay");
    control<QLineEdit>(play.window(), QStringLiteral("txtAnimSpeed")).setText(QStringLiteral("5.5"));
    EXPECT_FALSE(play.timer().isActive());
    play.press("cmdAnimUp");
    EXPECT_EQ(play.speed(), "6.5");
    EXPECT_FALSE(play.timer().isActive());
    control<QLineEdit>(play.window(), QStringLiteral("txtAnimSpeed")).setText(QStringLiteral("6"));
    EXPECT_TRUE(play.timer().isActive());
}

TEST(Playback, TheLoopGoesRoundUntilItIsTakenAway) {
    OpenPlayback play;
    play.press("animCheckLoop");
    EXPECT_TRUE(control<QCheckBox>(play.window(), QStringLiteral("animCheckLoop")).isChecked());
    play.press("cmdAnimPlay");
    EXPECT_EQ(play.run(1000), 1000);
    play.press("animCheckLoop");
    EXPECT_LT(play.run(1000), 1000);
}

TEST(Playback, PlayIsMarkedWhileTicksCome) {
    OpenPlayback play;
    auto& button = control<animation::TransportButton>(play.window(), QStringLiteral("cmdAnimPlay"));
    EXPECT_FALSE(button.isRunning());
    play.press("cmdAnimPlay");
    EXPECT_TRUE(button.isRunning());
    play.press("cmdAnimPause");
    EXPECT_FALSE(button.isRunning());
    play.press("cmdAnimPause");
    play.press("cmdAnimStop");
    EXPECT_FALSE(button.isRunning());
}

TEST(Playback, APressOnTheBoardStopsTheTimer) {
    OpenPlayback play;
    play.press("cmdAnimPlay");
    QTest::mousePress(&control<QWidget>(play.window(), QStringLiteral("pic")), Qt::LeftButton, {}, {5, 5});
    EXPECT_FALSE(play.timer().isActive());
}

TEST(Playback, PlaybackWritesNothing) {
    OpenPlayback play;
    play.press("cmdAnimPlay");
    play.run();
    play.press("cmdAnimStop");
    EXPECT_EQ(play.bytes(), testing::threeFramePlay());
}

} // namespace
} // namespace zeltrona::session
