#include "session/file_names.h"
#include "tests/session/playback_bench.h"

#include <QCheckBox>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

using animation::BoardPicture;
using testing::click;
using testing::control;
using testing::DialogAnswerer;
using testing::expectedBoard;
using testing::OpenPlayback;

/// A play with the full screen over it.
class FullScreenOfAPlay : public OpenPlayback {
public:
    explicit FullScreenOfAPlay(const std::string& bytes = testing::threeFramePlay()) : OpenPlayback(bytes) {
        openFullScreen();
        EXPECT_NE(fullScreen(), nullptr);
    }
    void pressThere(const char* name) { click(*fullScreen(), QLatin1String(name)); }
    std::string speedThere() {
        return control<QLineEdit>(*fullScreen(), QStringLiteral("txtAnimSpeed")).text().toStdString();
    }
};

TEST(FullScreenOfMain, OpensFromTheMenuWithoutBlockingTheMainWindow) {
    FullScreenOfAPlay play;
    EXPECT_EQ(play.fullScreen()->geometry(), play.window().screen()->geometry());
    EXPECT_TRUE(play.session().fullScreenOpen);
    EXPECT_TRUE(play.window().isVisible());
    EXPECT_TRUE(play.window().isEnabled());
    EXPECT_FALSE(play.timer().isActive());
    EXPECT_EQ(play.speed(), "7");
    EXPECT_EQ(play.speedThere(), "7");
}

TEST(FullScreenOfMain, ShowsTheBoardFromTheStart) {
    FullScreenOfAPlay play;
    play.fullScreen()->resize(800, 600);
    EXPECT_EQ(control<BoardPicture>(*play.fullScreen(), QStringLiteral("pic")).picture(),
              expectedBoard(toPath(play.path()), 1));
}

TEST(FullScreenOfMain, EachTickIsCopiedWithItsCounter) {
    FullScreenOfAPlay play;
    play.fullScreen()->resize(800, 600);
    play.pressThere("cmdAnimPlay");
    EXPECT_EQ(play.timer().interval(), 7);
    play.tick(5);
    EXPECT_EQ(control<BoardPicture>(*play.fullScreen(), QStringLiteral("pic")).picture(), play.board());
    EXPECT_EQ(control<QLabel>(*play.fullScreen(), QStringLiteral("animlblFrameCurr")).text(), "1/3");
    play.run();
    EXPECT_EQ(control<QLabel>(*play.fullScreen(), QStringLiteral("animlblFrameCurr")).text(), "3/3");
    EXPECT_NE(play.fullScreen(), nullptr) << "it stays with its last picture";
}

TEST(FullScreenOfMain, ItsButtonsDriveThePlayback) {
    FullScreenOfAPlay play;
    play.pressThere("cmdAnimPlay");
    EXPECT_TRUE(play.timer().isActive());
    play.pressThere("cmdAnimPause");
    EXPECT_FALSE(play.timer().isActive());
    play.pressThere("cmdAnimLast");
    play.tick();
    EXPECT_EQ(play.counter(), "2/3");
    play.pressThere("cmdAnimPrev");
    play.tick();
    EXPECT_EQ(play.counter(), "1/3");
    play.pressThere("cmdAnimNext");
    play.tick();
    EXPECT_EQ(play.counter(), "2/3");
    play.pressThere("cmdAnimFirst");
    play.tick();
    EXPECT_EQ(play.counter(), "1/3");
    play.pressThere("cmdAnimStop");
    EXPECT_FALSE(play.timer().isActive());
    EXPECT_NE(play.fullScreen(), nullptr);
}

TEST(FullScreenOfMain, TheLoopIsShownAlikeInBothWindows) {
    FullScreenOfAPlay play;
    play.pressThere("animCheckLoop");
    EXPECT_TRUE(play.session().animLoop);
    EXPECT_TRUE(control<QCheckBox>(play.window(), QStringLiteral("animCheckLoop")).isChecked());
    EXPECT_TRUE(control<QCheckBox>(*play.fullScreen(), QStringLiteral("animCheckLoop")).isChecked());
    play.press("animCheckLoop");
    EXPECT_FALSE(play.session().animLoop);
    EXPECT_FALSE(control<QCheckBox>(*play.fullScreen(), QStringLiteral("animCheckLoop")).isChecked());
}

TEST(FullScreenOfMain, SpeedEndsAreNineAndThree) {
    FullScreenOfAPlay play;
    for (int i = 0; i < 4; ++i) {
        play.pressThere("cmdAnimUp");
    }
    EXPECT_EQ(play.speed(), "9");
    EXPECT_EQ(play.speedThere(), "9");
    for (int i = 0; i < 8; ++i) {
        play.pressThere("cmdAnimDown");
    }
    EXPECT_EQ(play.speed(), "1");
    EXPECT_EQ(play.speedThere(), "1");
    play.pressThere("cmdAnimDown");
    EXPECT_EQ(play.speed(), "3");
    EXPECT_EQ(play.speedThere(), "3");
}

TEST(FullScreenOfMain, EscLeavesTheBoardOnFrameOneWithTheTimerOff) {
    FullScreenOfAPlay play;
    play.press("cmdSeqNoUp");
    play.pressThere("cmdAnimPlay");
    play.tick(3);
    QTest::keyClick(play.fullScreen(), Qt::Key_Escape);
    testing::settle();
    EXPECT_EQ(play.fullScreen(), nullptr);
    EXPECT_FALSE(play.session().fullScreenOpen);
    EXPECT_FALSE(play.timer().isActive());
    EXPECT_EQ(play.session().currFrame, 1);
    EXPECT_EQ(play.txtSeq(), "1 of 3");
    EXPECT_EQ(play.board(), expectedBoard(toPath(play.path()), 1));
    EXPECT_EQ(play.speed(), "7") << "the speed stays";
    play.press("cmdAnimPlay");
    play.tick();
    EXPECT_EQ(play.counter(), "1/3") << "the main window plays on without it";
}

TEST(FullScreenOfMain, YesToTheQuestionLeavesTheBoardOnFrameOne) {
    FullScreenOfAPlay play;
    play.pressThere("cmdAnimPlay");
    play.tick(3);
    DialogAnswerer answers;
    answers.expectMessage(QStringLiteral("Exit?"), QStringLiteral("Yes"));
    QTest::mouseClick(play.fullScreen(), Qt::LeftButton, {}, {3, 3});
    testing::settle();
    EXPECT_EQ(play.fullScreen(), nullptr);
    EXPECT_FALSE(play.timer().isActive());
    EXPECT_EQ(play.board(), expectedBoard(toPath(play.path()), 1));
}

TEST(FullScreenOfMain, ItOpensAgain) {
    FullScreenOfAPlay play;
    QTest::keyClick(play.fullScreen(), Qt::Key_Escape);
    testing::settle();
    play.openFullScreen();
    ASSERT_NE(play.fullScreen(), nullptr);
    play.pressThere("cmdAnimPlay");
    play.tick();
    EXPECT_EQ(play.counter(), "1/3");
}

} // namespace
} // namespace zeltrona::session
