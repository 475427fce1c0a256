#include "animation/frmMainFullScreen.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

using animation::frmMainFullScreen;
using testing::choose;
using testing::click;
using testing::control;
using testing::DialogAnswerer;
using testing::OpenPlay;
using testing::settle;
using testing::waitUntil;

QTimer& timerOf(OpenPlay& play) {
    return control<QTimer>(play.window(), QStringLiteral("Timer1"));
}

std::string counter(OpenPlay& play) {
    return control<QLabel>(play.window(), QStringLiteral("animlblFrameCurr")).text().toStdString();
}

std::string speed(QObject& window) {
    return control<QLineEdit>(window, QStringLiteral("txtAnimSpeed")).text().toStdString();
}

frmMainFullScreen* fullScreen() {
    const auto all = QApplication::topLevelWidgets();
    for (QWidget* one : all) {
        if (auto* found = qobject_cast<frmMainFullScreen*>(one); found != nullptr && found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}

TEST(MainTransport, PlayRunsToTheEndOnTheRealTimer) {
    OpenPlay play;
    testing::typeInto(play.window(), QStringLiteral("txtAnimSpeed"), QStringLiteral("9"));
    const QImage before = play.board();
    click(play.window(), QStringLiteral("cmdAnimPlay"));
    EXPECT_TRUE(timerOf(play).isActive());
    waitUntil([&] { return play.board() != before; });
    waitUntil([&] { return !timerOf(play).isActive(); }, 20000);
    EXPECT_EQ(counter(play), "3/3");
    EXPECT_EQ(play.session().currFrame, 1) << "playback leaves the editing position alone";
}

TEST(MainTransport, StopPutsTheBoardOnFrameOne) {
    OpenPlay play;
    click(play.window(), QStringLiteral("cmdSeqNoUp"));
    click(play.window(), QStringLiteral("cmdAnimPlay"));
    QTest::qWait(120);
    click(play.window(), QStringLiteral("cmdAnimStop"));
    EXPECT_FALSE(timerOf(play).isActive());
    EXPECT_EQ(play.txtSeq(), "1 of 3");
    EXPECT_EQ(play.board(), testing::expectedBoard(play.path().toStdString(), 1));
}

TEST(MainTransport, PauseTurnsTheTimerOffAndOn) {
    OpenPlay play;
    click(play.window(), QStringLiteral("cmdAnimPlay"));
    click(play.window(), QStringLiteral("cmdAnimPause"));
    EXPECT_FALSE(timerOf(play).isActive());
    const QImage paused = play.board();
    QTest::qWait(120);
    EXPECT_EQ(play.board(), paused);
    click(play.window(), QStringLiteral("cmdAnimPause"));
    EXPECT_TRUE(timerOf(play).isActive());
}

TEST(MainTransport, PauseOnAFreshPlayShowsZerosAndStopsAtTheNextTick) {
    OpenPlay play;
    click(play.window(), QStringLiteral("cmdAnimPause"));
    waitUntil([&] { return !timerOf(play).isActive(); });
    EXPECT_EQ(counter(play), "0/0");
}

TEST(MainTransport, JumpsKeepPlaying) {
    OpenPlay play;
    for (const char* button : {"cmdAnimFirst", "cmdAnimNext", "cmdAnimPrev", "cmdAnimLast"}) {
        click(play.window(), QString::fromLatin1(button));
        EXPECT_TRUE(timerOf(play).isActive()) << button;
    }
    click(play.window(), QStringLiteral("cmdAnimNext"));
    EXPECT_FALSE(timerOf(play).isActive()) << "on the last frame";
}

TEST(MainTransport, EachDigitHasItsInterval) {
    OpenPlay play;
    const int intervals[] = {120, 80, 50, 20, 10, 9, 7, 5, 2};
    for (int digit = 1; digit <= 9; ++digit) {
        testing::typeInto(play.window(), QStringLiteral("txtAnimSpeed"), QString::number(digit));
        click(play.window(), QStringLiteral("cmdAnimPlay"));
        EXPECT_EQ(timerOf(play).interval(), intervals[digit - 1]) << digit;
        click(play.window(), QStringLiteral("cmdAnimStop"));
    }
}

TEST(MainTransport, IntervalFollowsTheDigitAlsoWhileNothingRuns) {
    OpenPlay play;
    EXPECT_EQ(timerOf(play).interval(), 50);
    testing::typeInto(play.window(), QStringLiteral("txtAnimSpeed"), QStringLiteral("7"));
    EXPECT_EQ(timerOf(play).interval(), 7);
    testing::typeInto(play.window(), QStringLiteral("txtAnimSpeed"), QStringLiteral("0"));
    EXPECT_EQ(timerOf(play).interval(), 50);
    EXPECT_FALSE(timerOf(play).isActive());
}

TEST(MainTransport, WrongSpeedBecomesThreeWhileItIsTyped) {
    OpenPlay play;
    for (const char* typed : {"0", "x", "10"}) {
        testing::typeInto(play.window(), QStringLiteral("txtAnimSpeed"), QString::fromLatin1(typed));
        EXPECT_EQ(speed(play.window()), "3") << typed;
    }
}

TEST(MainTransport, UpAndDownStopAtTheEnds) {
    OpenPlay play;
    for (int i = 0; i < 10; ++i) {
        click(play.window(), QStringLiteral("cmdAnimUp"));
    }
    EXPECT_EQ(speed(play.window()), "9");
    for (int i = 0; i < 10; ++i) {
        click(play.window(), QStringLiteral("cmdAnimDown"));
    }
    EXPECT_EQ(speed(play.window()), "1");
}

TEST(MainTransport, LoopStartsAgain) {
    OpenPlay play;
    click(play.window(), QStringLiteral("animCheckLoop"));
    EXPECT_TRUE(play.session().animLoop);
    testing::typeInto(play.window(), QStringLiteral("txtAnimSpeed"), QStringLiteral("9"));
    click(play.window(), QStringLiteral("cmdAnimPlay"));
    waitUntil([&] { return counter(play) == "2/3"; }, 20000);
    waitUntil([&] { return counter(play) == "1/3"; }, 20000);
    EXPECT_TRUE(timerOf(play).isActive());
    click(play.window(), QStringLiteral("animCheckLoop"));
    EXPECT_FALSE(play.session().animLoop);
}

TEST(MainTransport, SmallerTeamEndsWithARunTimeErrorAndTheShownFrame) {
    std::string bytes = testing::threeFramePlay();
    bytes.replace(bytes.find("off1=40,200\r\n"), 13, "");
    OpenPlay play(bytes);
    DialogAnswerer answers;
    answers.expectMessage(QStringLiteral("Run-time error '9':\n\nSubscript out of range"));
    click(play.window(), QStringLiteral("cmdAnimPlay"));
    waitUntil([&] { return answers.answered() == 1; });
    EXPECT_FALSE(timerOf(play).isActive());
    EXPECT_EQ(play.board(), testing::expectedBoard(play.path().toStdString(), 1));
    EXPECT_EQ(play.bytes(), bytes);
}

TEST(FullScreen, OpensBesideTheMainWindowAtSpeedSevenAndPlaysThere) {
    OpenPlay play;
    choose(play.window(), QStringLiteral("mnuViewFullScreenAnimation"));
    settle();
    frmMainFullScreen* screen = fullScreen();
    ASSERT_NE(screen, nullptr);
    EXPECT_TRUE(play.session().fullScreenOpen);
    EXPECT_TRUE(play.window().isVisible());
    EXPECT_EQ(speed(*screen), "7");
    EXPECT_EQ(speed(play.window()), "7");
    click(*screen, QStringLiteral("cmdAnimPlay"));
    EXPECT_EQ(timerOf(play).interval(), 7);
    auto& shown = control<QLabel>(*screen, QStringLiteral("animlblFrameCurr"));
    waitUntil([&] { return shown.text() == QStringLiteral("2/3"); }, 20000);
    EXPECT_EQ(counter(play), "2/3");
    click(*screen, QStringLiteral("animCheckLoop"));
    EXPECT_TRUE(control<QCheckBox>(play.window(), QStringLiteral("animCheckLoop")).isChecked());
    EXPECT_TRUE(play.session().animLoop);
}

TEST(FullScreen, EscapeClosesItAndPutsTheBoardOnFrameOne) {
    OpenPlay play;
    click(play.window(), QStringLiteral("cmdSeqNoUp"));
    choose(play.window(), QStringLiteral("mnuViewFullScreenAnimation"));
    settle();
    click(*fullScreen(), QStringLiteral("cmdAnimPlay"));
    QTest::keyClick(fullScreen(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(fullScreen(), nullptr);
    EXPECT_FALSE(play.session().fullScreenOpen);
    EXPECT_FALSE(timerOf(play).isActive());
    EXPECT_EQ(play.txtSeq(), "1 of 3");
}

TEST(FullScreen, SecondChoiceOpensNoSecondOne) {
    OpenPlay play;
    choose(play.window(), QStringLiteral("mnuViewFullScreenAnimation"));
    settle();
    frmMainFullScreen* first = fullScreen();
    choose(play.window(), QStringLiteral("mnuViewFullScreenAnimation"));
    settle();
    EXPECT_EQ(fullScreen(), first);
    int open = 0;
    const auto all = QApplication::topLevelWidgets();
    for (const QWidget* one : all) {
        open += one->objectName() == QLatin1String("frmMainFullScreen") ? 1 : 0;
    }
    EXPECT_EQ(open, 1);
}

TEST(FullScreen, GoesWithTheMainWindow) {
    OpenPlay play;
    choose(play.window(), QStringLiteral("mnuViewFullScreenAnimation"));
    settle();
    ASSERT_NE(fullScreen(), nullptr);
    choose(play.window(), QStringLiteral("mnuFileExit"));
    settle();
    EXPECT_EQ(fullScreen(), nullptr);
    EXPECT_TRUE(play.pointer().isNull());
    EXPECT_FALSE(play.session().fullScreenOpen);
}

} // namespace
} // namespace zeltrona::session
