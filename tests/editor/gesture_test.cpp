#include "tests/editor/editor_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;
using ::testing::ElementsAre;

TEST(Gesture, RightPressInALineEndsItEvenOnAPlayer) {
    Desk desk;
    desk.takeTool(0);
    desk.press(10, 10);
    desk.press(60, 60);
    desk.press(110, 110, kRight);
    EXPECT_EQ(desk.state.pickedOff, -1);
    EXPECT_EQ(desk.records.lines[0].pts.size(), 2U);
    EXPECT_EQ(desk.countOf("popup"), 0U);
}

TEST(Gesture, LineToolIsReadyForTheNextLine) {
    Desk desk;
    desk.takeTool(3);
    desk.press(10, 10);
    desk.release();
    desk.press(60, 60);
    desk.release();
    desk.press(60, 60, kRight);
    desk.release();
    desk.press(70, 70);
    EXPECT_TRUE(desk.state.lineInProgress);
    EXPECT_EQ(desk.state.editLineIndex, 1);
    EXPECT_EQ(desk.records.lines.size(), 2U);
}

TEST(Gesture, BoxEdgesHitAndOneFurtherMisses) {
    const std::pair<float, float> hits[] = {{100, 100}, {126, 126}, {126, 100}, {100, 126}, {126.5F, 99.5F}};
    for (const auto& [x, y] : hits) {
        Desk desk;
        desk.press(x, y);
        EXPECT_EQ(desk.state.pickedOff, 0) << x << ' ' << y;
    }
    const std::pair<float, float> misses[] = {{99, 110}, {127, 110}, {110, 99}, {110, 127}, {126.75F, 110}};
    for (const auto& [x, y] : misses) {
        Desk desk;
        desk.press(x, y);
        EXPECT_EQ(desk.state.pickedOff, -1) << x << ' ' << y;
    }
}

TEST(Gesture, LowerOfTwoOffencePlayersIsPicked) {
    Desk desk;
    desk.records.offPlayers = {playerAt(100, 100), playerAt(105, 105)};
    desk.press(110, 110);
    EXPECT_EQ(desk.state.pickedOff, 0);
}

TEST(Gesture, LowerOfTwoDefencePlayersIsPicked) {
    Desk desk;
    desk.records.defPlayers = {playerAt(200, 100), playerAt(205, 105)};
    desk.press(210, 110);
    EXPECT_EQ(desk.state.pickedDef, 0);
}

TEST(Gesture, HigherOfTwoBallsIsPicked) {
    Desk desk;
    desk.records.balls = {{300, 250}, {305, 255}};
    desk.press(310, 260);
    EXPECT_EQ(desk.state.pickedBall, 1);
    EXPECT_EQ(desk.state.ballOriginX, 305);
}

TEST(Gesture, DefencePlayerAboveAnOffencePlayerWins) {
    Desk desk;
    desk.records.defPlayers = {playerAt(110, 110)};
    desk.press(115, 115);
    EXPECT_EQ(desk.state.pickedDef, 0);
    EXPECT_EQ(desk.state.pickedOff, -1);
}

TEST(Gesture, HandUnderALaterOffenceBodyStaysGripped) {
    Desk desk;
    desk.session.bodyType = 1;
    desk.records.offPlayers = {playerAt(100, 100), playerAt(120, 80)};
    desk.press(145, 105);
    EXPECT_EQ(desk.state.pickedOff, 1);
    EXPECT_EQ(desk.state.rotatePick, 100);
    EXPECT_EQ(desk.state.grabDX, -25);
}

TEST(Gesture, HandUnderALaterDefenceBodyIsLetGo) {
    Desk desk;
    desk.session.bodyType = 1;
    desk.records.defPlayers = {playerAt(120, 80)};
    desk.press(145, 105);
    EXPECT_EQ(desk.state.pickedDef, 0);
    EXPECT_EQ(desk.state.rotatePick, -1);
}

TEST(Gesture, DefendersHandOnAnOffenceBodyIsGrippedAndSpoilsItsGrab) {
    Desk desk;
    desk.session.bodyType = 1;
    desk.records.offPlayers = {playerAt(120, 80)};
    desk.records.defPlayers = {playerAt(100, 100)};
    desk.press(145, 105);
    EXPECT_EQ(desk.state.pickedOff, 0);
    EXPECT_EQ(desk.state.rotatePick, 200);
    EXPECT_EQ(desk.state.grabDX, 45);
    EXPECT_EQ(desk.state.grabDY, -25);
}

TEST(Gesture, RefusedBallLetsTheHandGoFirst) {
    Desk desk;
    desk.session.bodyType = 1;
    desk.session.currFrame = 1;
    desk.host.isCurveChecked = true;
    desk.records.balls = {{120, 100}};
    std::int16_t gripWhileTold = 0;
    desk.host.whileOpen = [&] { gripWhileTold = desk.state.rotatePick; };
    desk.press(125, 105);
    EXPECT_EQ(desk.countOf("message"), 1U);
    EXPECT_EQ(gripWhileTold, -1);
    EXPECT_EQ(desk.state.pickedBall, -1);
}

TEST(Gesture, FirstBallRefusedEndsTheSearch) {
    Desk desk;
    desk.session.currFrame = 1;
    desk.host.isCurveChecked = true;
    desk.records.balls = {{300, 250}, {305, 255}};
    desk.press(310, 260);
    EXPECT_EQ(desk.countOf("message"), 1U);
    EXPECT_EQ(desk.countOf("status"), 0U);
}

TEST(Gesture, EarlierBodyHidesALaterHand) {
    Desk desk;
    desk.session.bodyType = 1;
    desk.records.offPlayers = {playerAt(120, 80), playerAt(100, 100)};
    desk.press(145, 105);
    EXPECT_EQ(desk.state.pickedOff, 0);
    EXPECT_EQ(desk.state.rotatePick, -1);
}

TEST(Gesture, NobodyIsDraggedCurvedInTheFirstFrame) {
    Desk desk;
    desk.session.currFrame = 1;
    desk.host.isCurveChecked = true;
    for (const auto& [x, y] : {std::pair{110.0F, 110.0F}, {210.0F, 110.0F}, {310.0F, 260.0F}}) {
        desk.press(x, y);
        desk.drag(x - 20, y - 20);
        desk.release();
    }
    EXPECT_EQ(desk.countOf("message"), 3U);
    Desk untouched;
    EXPECT_EQ(desk.records, untouched.records);
}

TEST(Gesture, ShadowIsSetByTwoClicks) {
    Desk desk;
    desk.host.colors = {6};
    desk.click(tool::kShadow);
    desk.press(20, 200);
    desk.release();
    desk.move(60, 260);
    desk.move(70, 270);
    desk.press(80, 280);
    desk.release();
    EXPECT_THAT(desk.records.shadows, ElementsAre(document::ShadowRec{20, 200, 80, 280, 6}));
    EXPECT_EQ(desk.state.currTool, -1);
    EXPECT_FALSE(desk.state.toolDown[tool::kShadow]);
}

TEST(Gesture, ShadowDraggedWithTheButtonDownKeepsItsDrag) {
    Desk desk;
    desk.host.colors = {6};
    desk.click(tool::kShadow);
    desk.press(20, 200);
    desk.drag(60, 260);
    EXPECT_EQ(desk.records.shadows[0].w, 60);
    EXPECT_TRUE(desk.state.shadowSizing);
}

TEST(Gesture, FirstShadowCornerOnAPlayerPicksThePlayerButMovesTheShadow) {
    Desk desk;
    desk.host.colors = {6};
    desk.click(tool::kShadow);
    desk.press(110, 110);
    desk.drag(150, 150);
    EXPECT_EQ(desk.state.pickedOff, 0);
    EXPECT_EQ(desk.records.offPlayers[0].x, 100.0F);
    EXPECT_EQ(desk.records.shadows[0].w, 150);
}

TEST(Gesture, BallFollowsThePointerUntilItIsDroppedAndThenTheDrag) {
    Desk desk;
    desk.click(tool::kBall);
    desk.move(20, 220);
    EXPECT_EQ(desk.records.balls[1], (document::BallRec{20, 220}));
    desk.press(30, 230);
    desk.drag(40, 240);
    desk.release();
    EXPECT_EQ(desk.records.balls[1], (document::BallRec{40, 240}));
    desk.move(50, 250);
    EXPECT_EQ(desk.records.balls[1], (document::BallRec{40, 240}));
}

TEST(Gesture, DeleteStaysSelectedAndTakesOneObjectAPress) {
    Desk desk;
    desk.records.triangles = {{300, 262, 1}};
    desk.takeTool(tool::kDelete);
    desk.press(302, 254);
    desk.release();
    EXPECT_FALSE(hasBalls(desk.records.balls));
    EXPECT_TRUE(hasTriangles(desk.records.triangles));
    desk.press(302, 254);
    desk.release();
    EXPECT_FALSE(hasTriangles(desk.records.triangles));
    EXPECT_EQ(desk.state.currTool, tool::kDelete);
}

TEST(Gesture, ColorToolBlocksNothing) {
    Desk desk;
    desk.host.colors = {6};
    desk.click(tool::kColor);
    desk.press(110, 110);
    desk.drag(120, 120);
    EXPECT_EQ(desk.records.offPlayers[0].x, 110.0F);
    EXPECT_TRUE(desk.state.toolDown[tool::kColor]);
}

TEST(Gesture, ShiftPicksPlayerAndBallEachWithItsGrabFromTheSecondPress) {
    Desk desk;
    desk.press(110, 110, kLeft, kShift);
    desk.release(kShift);
    desk.press(310, 260, kLeft, kShift);
    EXPECT_EQ(desk.state.pickedOff, 0);
    EXPECT_EQ(desk.state.pickedBall, 0);
    desk.drag(300, 255);
    EXPECT_EQ(desk.records.offPlayers[0].x, 90.0F);
    EXPECT_EQ(desk.records.offPlayers[0].y, 95.0F);
    EXPECT_EQ(desk.records.balls[0], (document::BallRec{290, 245}));
    desk.release(kShift);
    desk.move(200, 200);
    EXPECT_EQ(desk.state.pickedOff, -1);
    EXPECT_EQ(desk.state.pickedBall, -1);
}

TEST(Gesture, PlayerPickedAloneWithShiftStaysUntilAReleaseWithoutIt) {
    Desk desk;
    desk.press(110, 110, kLeft, kShift);
    desk.release(kShift);
    desk.move(20, 20);
    desk.move(30, 30);
    EXPECT_EQ(desk.state.pickedOff, 0);
    desk.release();
    EXPECT_EQ(desk.state.pickedOff, -1);
}

TEST(Gesture, DragGoesToTheVeryEdgeAndStopsBeyondIt) {
    Desk desk;
    desk.press(110, 110);
    desk.drag(362, 331);
    EXPECT_EQ(desk.records.offPlayers[0].x, 352.0F);
    desk.drag(363, 200);
    desk.drag(500, 200);
    EXPECT_EQ(desk.records.offPlayers[0].x, 352.0F);
    desk.drag(0, 0);
    EXPECT_EQ(desk.records.offPlayers[0].x, -10.0F);
    EXPECT_EQ(desk.records.offPlayers[0].y, -10.0F);
}

TEST(Gesture, StandingBallOfTheCornerCountsAsNoneButCanBePicked) {
    Desk desk;
    document::resetBalls(desk.records.balls);
    desk.press(26, 26);
    EXPECT_EQ(desk.state.pickedBall, 0);
    desk.drag(36, 46);
    EXPECT_TRUE(hasBalls(desk.records.balls));
    EXPECT_EQ(desk.records.balls[0], (document::BallRec{10, 20}));
}

TEST(Gesture, BallCarriedToTheCornerCountsAsNoneAndIsLeftThere) {
    Desk desk;
    document::resetBalls(desk.records.balls);
    desk.click(tool::kBall);
    desk.move(10, 0);
    EXPECT_EQ(desk.records.balls[0], (document::BallRec{10, 0}));
    desk.move(0, 0);
    desk.move(5, 5);
    EXPECT_EQ(desk.records.balls[0], (document::BallRec{0, 0}));
    EXPECT_TRUE(desk.state.toolDown[tool::kBall]);
}

TEST(Gesture, EveryPressAndReleaseStopsTheTimerAndNoMoveDoes) {
    Desk desk;
    desk.press(110, 110);
    desk.drag(120, 120);
    desk.move(130, 130);
    desk.release();
    EXPECT_EQ(desk.countOf("timer off"), 2U);
    EXPECT_EQ(desk.countOf("timer"), 2U);
}

} // namespace
} // namespace zeltrona::editor
