#include "tests/editor/editor_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;
using ::testing::ElementsAre;

std::string hintOf(Desk& desk, std::int16_t tool = -1) {
    desk.host.calls.clear();
    showStatusHint(desk.editor, tool, false, 7, 8);
    return desk.host.calls.size() == 1 ? desk.host.calls[0] : "not one call";
}

TEST(StatusHint, WithoutCoordinatesTheHintStandsAlone) {
    Desk desk;
    EXPECT_EQ(hintOf(desk), "status [31]");
}

TEST(StatusHint, CoordinatesStandAheadAsShortNumbers) {
    Desk desk;
    showStatusHint(desk.editor, -1, true, 120.0F, 88.5F);
    EXPECT_THAT(desk.host.calls, ElementsAre("status  (120,88.5) -[31]"));
}

TEST(StatusHint, CoordinatesStandAheadOfAToolsHintToo) {
    Desk desk;
    showStatusHint(desk.editor, 9, true, 0.0F, 0.25F);
    EXPECT_THAT(desk.host.calls, ElementsAre("status  (0,0.25) -[29]"));
}

TEST(StatusHint, LineToolsFollowTheCurveBox) {
    Desk desk;
    for (std::int16_t i = 0; i <= 4; ++i) {
        desk.host.isCurveChecked = false;
        EXPECT_EQ(hintOf(desk, i), "status [23]");
        desk.host.isCurveChecked = true;
        EXPECT_EQ(hintOf(desk, i), "status [24]");
    }
}

TEST(StatusHint, OtherToolsHaveTheirOwnText) {
    Desk desk;
    for (std::int16_t i = 5; i <= 10; ++i) {
        EXPECT_EQ(hintOf(desk, i), "status [" + std::to_string(i + 20) + "]");
    }
}

TEST(StatusHint, ToolsHintComesBeforeThePicked) {
    Desk desk;
    desk.state.pickedBall = 0;
    EXPECT_EQ(hintOf(desk, 10), "status [30]");
}

TEST(StatusHint, NumberOutsideTheToolsIsNoTool) {
    Desk desk;
    EXPECT_EQ(hintOf(desk, 11), "status [31]");
    EXPECT_EQ(hintOf(desk, -2), "status [31]");
}

TEST(StatusHint, CurveBoxThenBallThenPlayerThenHandThenReady) {
    Desk desk;
    desk.session.bodyType = 1;
    desk.host.isCurveChecked = true;
    desk.state.pickedBall = 0;
    desk.state.pickedOff = 0;
    desk.state.rotatePick = 100;
    EXPECT_EQ(hintOf(desk), "status [32]");
    desk.host.isCurveChecked = false;
    EXPECT_EQ(hintOf(desk), "status Click and hold on the ball to move it. ");
    desk.state.pickedBall = -1;
    EXPECT_EQ(hintOf(desk), "status Click and hold on the player's icon to move it. ");
    desk.state.pickedOff = -1;
    EXPECT_EQ(hintOf(desk), "status Click and hold on the player's hand to rotate it. ");
    desk.state.rotatePick = -1;
    EXPECT_EQ(hintOf(desk), "status [31]");
}

TEST(StatusHint, PickedDefenceCountsAsAPlayer) {
    Desk desk;
    desk.state.pickedDef = 0;
    EXPECT_EQ(hintOf(desk), "status Click and hold on the player's icon to move it. ");
}

TEST(StatusHint, HandNeedsBodies) {
    Desk desk;
    desk.state.rotatePick = 100;
    desk.session.bodyType = 0;
    EXPECT_EQ(hintOf(desk), "status [31]");
}

} // namespace
} // namespace zeltrona::editor
