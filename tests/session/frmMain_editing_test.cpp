#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

using testing::click;
using testing::control;
using testing::DialogAnswerer;
using testing::drag;
using testing::moveTo;
using testing::OpenPlay;
using testing::pressAt;
using testing::releaseAt;

void clickAt(QWidget& pic, QPointF place, Qt::MouseButton button = Qt::LeftButton,
             Qt::KeyboardModifiers modifiers = {}) {
    moveTo(pic, place);
    pressAt(pic, place, button, modifiers);
    releaseAt(pic, place, button, modifiers);
}

void save(OpenPlay& play) {
    click(play.window(), QStringLiteral("seqSave"));
}

void checkCurve(OpenPlay& play) {
    click(play.window(), QStringLiteral("CheckCurve"));
}

TEST(MainEditing, LineIsDrawnByClicksAndEndedByTheRightButton) {
    OpenPlay play;
    play.pickTool(1);
    EXPECT_EQ(play.tag(1), "1");
    EXPECT_EQ(play.status(), "Linear line.Use Esc to cancel,Alt+Click or Right Click to finish line");
    clickAt(play.pic(), {20, 30});
    clickAt(play.pic(), {60, 80});
    clickAt(play.pic(), {90, 40});
    clickAt(play.pic(), {300, 300}, Qt::RightButton);
    EXPECT_EQ(play.tag(1), "1") << "the tool stays for the next line";
    save(play);
    EXPECT_EQ(play.key("Frame1", "Line0"), "1,0,0,20,30,60,80,90,40,");
    EXPECT_EQ(play.board(), testing::expectedBoard(play.path().toStdString(), 1));
}

TEST(MainEditing, AltPressEndsALineButAltShiftDoesNot) {
    OpenPlay play;
    play.pickTool(0);
    clickAt(play.pic(), {20, 30});
    clickAt(play.pic(), {60, 80}, Qt::LeftButton, Qt::AltModifier | Qt::ShiftModifier);
    clickAt(play.pic(), {90, 90}, Qt::LeftButton, Qt::AltModifier);
    save(play);
    EXPECT_EQ(play.key("Frame1", "Line0"), "0,0,0,20,30,60,80,");
}

TEST(MainEditing, RubberBandFollowsThePointerWithoutAButton) {
    OpenPlay play;
    const QImage before = play.board();
    play.pickTool(0);
    clickAt(play.pic(), {20, 30});
    moveTo(play.pic(), {80, 60});
    const QImage banded = play.board();
    EXPECT_NE(banded, before);
    moveTo(play.pic(), {40, 120});
    EXPECT_NE(play.board(), banded);
}

TEST(MainEditing, EscapeDropsTheLineWhereverTheFocusIs) {
    OpenPlay play;
    const QImage before = play.board();
    for (const char* focused : {"pic", "seqSave", "txtAnimSpeed", "Picture1_0"}) {
        if (play.tag(0) == "0") {
            play.pickTool(0);
        }
        clickAt(play.pic(), {20, 30});
        clickAt(play.pic(), {60, 80});
        auto& target = control<QWidget>(play.window(), QString::fromLatin1(focused));
        target.setFocus();
        QTest::keyClick(&target, Qt::Key_Escape);
        EXPECT_EQ(play.board(), before) << focused;
        EXPECT_EQ(play.tag(0), "1");
    }
}

TEST(MainEditing, EscapeCancelsNothingElse) {
    OpenPlay play;
    play.pickTool(5);
    QTest::keyClick(&play.window(), Qt::Key_Escape);
    EXPECT_EQ(play.tag(5), "1");
    EXPECT_TRUE(play.window().isVisible());
}

TEST(MainEditing, OneToolIsDownAtMostAndASecondClickPutsItUp) {
    OpenPlay play;
    play.pickTool(2);
    play.pickTool(9);
    EXPECT_EQ(play.tag(2), "0");
    EXPECT_EQ(play.tag(9), "1");
    play.pickTool(9);
    EXPECT_EQ(play.tag(9), "0");
}

TEST(MainEditing, BallFollowsThePointerAndAPressDropsIt) {
    OpenPlay play;
    play.pickTool(5);
    EXPECT_EQ(play.status(), "Click to drop a ball.");
    moveTo(play.pic(), {250, 150});
    clickAt(play.pic(), {260, 160});
    EXPECT_EQ(play.tag(5), "0");
    save(play);
    EXPECT_EQ(play.key("Frame1", "Ball0"), "128,92.5,");
    EXPECT_EQ(play.key("Frame1", "Ball1"), "260,160,");
}

TEST(MainEditing, HintCarriesTheCoordinatesOfEveryMove) {
    OpenPlay play;
    moveTo(play.pic(), {300, 300});
    EXPECT_EQ(play.status(), " (300,300) -Ready.");
    moveTo(play.pic(), {300.5, 12});
    EXPECT_EQ(play.status(), " (300.5,12) -Ready.");
}

TEST(MainEditing, HintsAreSerbianInSerbian) {
    OpenPlay play(testing::threeFramePlay(), 1);
    moveTo(play.pic(), {300, 300});
    EXPECT_EQ(play.status(), " (300,300) -Spreman za rad.");
    play.pickTool(9);
    EXPECT_EQ(play.status(), "Obrisi objekt.");
}

TEST(MainEditing, PlayerIsDraggedStraight) {
    OpenPlay play;
    drag(play.pic(), {{110, 110}, {150, 130}, {210, 220}});
    save(play);
    EXPECT_EQ(play.key("Frame1", "off0"), "200,210");
    EXPECT_EQ(play.key("Frame1", "off0curve"), "(none)");
}

TEST(MainEditing, DragThatLeavesTheBoardStopsFollowing) {
    OpenPlay play;
    drag(play.pic(), {{110, 110}, {150, 130}, {400, 130}});
    save(play);
    EXPECT_EQ(play.key("Frame1", "off0"), "140,120");
}

TEST(MainEditing, CurvedMovementIsRefusedInTheFirstFrame) {
    OpenPlay play;
    checkCurve(play);
    DialogAnswerer answers;
    answers.expectMessage(QStringLiteral("It not allowed to make curved movement in first sequence"));
    pressAt(play.pic(), {110, 110});
    releaseAt(play.pic(), {110, 110});
    EXPECT_EQ(answers.answered(), 1);
}

TEST(MainEditing, CurvedMovementLeavesAPathAndTheNextFrameBeginsAtItsEnd) {
    OpenPlay play;
    click(play.window(), QStringLiteral("cmdSeqNoUp"));
    click(play.window(), QStringLiteral("cmdSeqNoUp"));
    checkCurve(play);
    drag(play.pic(), {{20, 30}, {30, 40}, {60, 80}, {90, 95}});
    save(play);
    EXPECT_EQ(play.key("Frame3", "off0"), "10,20");
    EXPECT_EQ(play.key("Frame3", "off0curve"), "20,30,50,70,80,85,");
    click(play.window(), QStringLiteral("seqNew"));
    EXPECT_EQ(play.txtSeq(), "4of4");
    EXPECT_EQ(play.key("Frame4", "off0"), "80,85");
    EXPECT_EQ(play.key("Frame4", "off0curve"), "(none)");
}

TEST(MainEditing, ShiftPicksPlayerAndBallTogether) {
    OpenPlay play;
    pressAt(play.pic(), {110, 110}, Qt::LeftButton, Qt::ShiftModifier);
    releaseAt(play.pic(), {110, 110}, Qt::LeftButton, Qt::ShiftModifier);
    pressAt(play.pic(), {140, 100}, Qt::LeftButton, Qt::ShiftModifier);
    moveTo(play.pic(), {160, 130}, Qt::LeftButton);
    releaseAt(play.pic(), {160, 130});
    save(play);
    EXPECT_EQ(play.key("Frame1", "off0"), "120,130");
    EXPECT_EQ(play.key("Frame1", "Ball0"), "148,122,");
}

TEST(MainEditing, ColorToolAsksAndNewLinesTakeTheColor) {
    OpenPlay play;
    DialogAnswerer answers;
    answers.expectColor(QColor(255, 0, 0));
    play.pickTool(10);
    EXPECT_EQ(play.status(), "Set color for lines,text.");
    EXPECT_EQ(play.session().colorLine, 255);
    answers.expectColorCancelled();
    play.pickTool(10);
    EXPECT_EQ(play.session().colorLine, 255) << "a cancel takes what the dialog holds";
    play.pickTool(0);
    clickAt(play.pic(), {20, 30});
    clickAt(play.pic(), {60, 80});
    clickAt(play.pic(), {60, 80}, Qt::RightButton);
    save(play);
    EXPECT_EQ(play.key("Frame1", "Line0"), "0,0,255,20,30,60,80,");
}

TEST(MainEditing, CancelledColorToolTakesTheBlackThatTheDialogHeldAtFirst) {
    std::string bytes = testing::threeFramePlay();
    bytes.replace(bytes.find("colorLine=0"), 11, "colorLine=9");
    OpenPlay play(bytes);
    DialogAnswerer answers;
    answers.expectColorCancelled();
    play.pickTool(10);
    EXPECT_EQ(play.session().colorLine, 0);
}

TEST(MainEditing, ShadowIsSizedByTwoClicks) {
    OpenPlay play;
    DialogAnswerer answers;
    answers.expectColor(QColor(0, 0, 255));
    play.pickTool(8);
    EXPECT_EQ(play.status(), "Click,then move mouse to resize shadow and click to finish.");
    clickAt(play.pic(), {300, 250});
    clickAt(play.pic(), {340, 290});
    EXPECT_EQ(play.tag(8), "0");
    save(play);
    EXPECT_EQ(play.key("Frame1", "Shadow0"), "16711680,300,250,340,290,");
}

TEST(MainEditing, CancelledShadowPutsTheButtonUpAndLeavesABlankOne) {
    OpenPlay play;
    DialogAnswerer answers;
    answers.expectColorCancelled();
    play.pickTool(8);
    EXPECT_EQ(play.tag(8), "0");
    save(play);
    EXPECT_EQ(play.key("Frame1", "Shadow0"), "(none)") << "a shadow of zeros alone counts as absent";
}

TEST(MainEditing, TextComesByNoticeFontAndPrompt) {
    OpenPlay play;
    DialogAnswerer answers;
    answers.expect([](QWidget& notice) {
        EXPECT_EQ(notice.objectName(), QStringLiteral("frmTxtMsg"));
        click(notice, QStringLiteral("OKButton"));
    });
    answers.expectFont([](QWidget& dialog) { dialog.setProperty("color", QColor(0, 128, 0)); });
    answers.expect([](QWidget& prompt) {
        EXPECT_EQ(prompt.objectName(), QStringLiteral("frmInputBox"));
        testing::typeInto(prompt, QStringLiteral("Text1"), QStringLiteral("Screen"));
        click(prompt, QStringLiteral("Command1"));
    });
    play.pickTool(7);
    clickAt(play.pic(), {200, 230});
    EXPECT_EQ(play.tag(7), "0");
    save(play);
    EXPECT_EQ(play.key("Frame1", "txtPic0"), "Screen,200,230,Arial,12,32768,0,0,0,0,");
    EXPECT_EQ(play.board(), testing::expectedBoard(play.path().toStdString(), 1));
}

TEST(MainEditing, GivenUpTextPutsTheButtonUp) {
    OpenPlay play;
    play.session().hideCharsetMessage = true;
    DialogAnswerer answers;
    answers.expectFontCancelled();
    play.pickTool(7);
    EXPECT_EQ(play.tag(7), "0");
    answers.expectFont();
    answers.expect([](QWidget& prompt) { prompt.close(); });
    play.pickTool(7);
    EXPECT_EQ(play.tag(7), "0");
    EXPECT_EQ(answers.answered(), 3);
}

TEST(MainEditing, DeleteToolTakesABallFromTheFileAtOnce) {
    OpenPlay play;
    play.pickTool(9);
    clickAt(play.pic(), {130, 85});
    EXPECT_EQ(play.key("Frame1", "Ball0"), "(none)");
    EXPECT_EQ(play.key("Frame2", "Ball0"), "140,100,");
    EXPECT_EQ(play.tag(9), "1");
}

TEST(MainEditing, RightPressOnTheEmptyBoardOpensThePopUpMenu) {
    OpenPlay play;
    auto& menu = control<QMenu>(play.window(), QStringLiteral("mnuPopUp"));
    pressAt(play.pic(), {300, 300}, Qt::RightButton);
    ASSERT_TRUE(menu.isVisible());
    EXPECT_EQ(menu.pos(), play.pic().mapToGlobal(QPoint(300, 300)));
    QApplication::clipboard()->clear();
    testing::choose(play.window(), QStringLiteral("mnuPopUpCopy"));
    menu.close();
    EXPECT_EQ(QApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32), play.board());
}

TEST(MainEditing, RightPressOnACircleOpensNothing) {
    OpenPlay play;
    pressAt(play.pic(), {110, 110}, Qt::RightButton);
    EXPECT_FALSE(control<QMenu>(play.window(), QStringLiteral("mnuPopUp")).isVisible());
    EXPECT_FALSE(control<QWidget>(play.window(), QStringLiteral("pBodyTool_0")).isVisible());
    releaseAt(play.pic(), {110, 110}, Qt::RightButton);
}

TEST(MainEditing, RightPressOnABodyOpensThePosesAndAChoiceChangesIt) {
    OpenPlay play(testing::playWithBodies());
    pressAt(play.pic(), {125, 125}, Qt::RightButton);
    releaseAt(play.pic(), {125, 125}, Qt::RightButton);
    auto& panel = control<QWidget>(play.window(), QStringLiteral("pBodyTool_0"));
    ASSERT_TRUE(panel.isVisible());
    EXPECT_EQ(panel.pos(), QPoint(125, 125));
    EXPECT_EQ(panel.property("Tag").toString(), QStringLiteral("off"));
    auto& first = control<QWidget>(play.window(), QStringLiteral("pBodyTool_1"));
    EXPECT_EQ(first.property("Tag").toString(), QStringLiteral("0"));
    click(play.window(), QStringLiteral("pBodyTool_3"));
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(panel.property("Tag").toString(), QString());
    EXPECT_EQ(first.property("Tag").toString(), QString());
    save(play);
    EXPECT_EQ(play.key("Frame1", "bodyoff0"), "2");
}

TEST(MainEditing, PosePanelStaysWholeAtTheEdgeOfTheBoard) {
    OpenPlay play(testing::playWithBodies());
    drag(play.pic(), {{125, 125}, {355, 325}});
    pressAt(play.pic(), {355, 325}, Qt::RightButton);
    const auto& panel = control<QWidget>(play.window(), QStringLiteral("pBodyTool_0"));
    ASSERT_TRUE(panel.isVisible());
    EXPECT_TRUE(play.pic().rect().contains(panel.geometry()));
}

TEST(MainEditing, HandIsTurnedInStepsOfFifteenDegrees) {
    OpenPlay play(testing::playWithBodies());
    pressAt(play.pic(), {148, 125});
    moveTo(play.pic(), {125, 101}, Qt::LeftButton);
    releaseAt(play.pic(), {125, 101});
    save(play);
    EXPECT_EQ(play.key("Frame1", "angleoff0"), "90");
}

TEST(MainEditing, PressOnTheBoardStopsARunningPlayback) {
    OpenPlay play;
    click(play.window(), QStringLiteral("cmdAnimPlay"));
    const auto& timer = control<QTimer>(play.window(), QStringLiteral("Timer1"));
    EXPECT_TRUE(timer.isActive());
    clickAt(play.pic(), {300, 300});
    EXPECT_FALSE(timer.isActive());
}

} // namespace
} // namespace zeltrona::session
