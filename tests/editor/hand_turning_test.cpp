#include "editor/hit_test.h"
#include "tests/editor/editor_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;

/// A hand gripped with `reached` degrees of the player facing `angle`; the pointer then shows 180 degrees.
struct TurnCase {
    std::int16_t reached;
    std::int16_t angle;
    std::int16_t newReached;
    std::int16_t newAngle;
};

class HandTurnStep : public ::testing::TestWithParam<TurnCase> {};

TEST_P(HandTurnStep, GoesByStepsOfFifteen) {
    Desk desk;
    desk.session.bodyType = 1;
    desk.state.rotatePick = 100;
    desk.state.grabDX = GetParam().reached;
    desk.records.offPlayers[0].angle = GetParam().angle;
    desk.move(105, 125);
    EXPECT_EQ(desk.state.grabDX, GetParam().newReached);
    EXPECT_EQ(desk.records.offPlayers[0].angle, GetParam().newAngle);
}

INSTANTIATE_TEST_SUITE_P(, HandTurnStep,
                         ::testing::Values(TurnCase{90, 90, 180, 180},    // six steps on
                                           TurnCase{173, 90, 173, 90},    // 7 degrees: none
                                           TurnCase{172, 90, 187, 105},   // 8 degrees: one
                                           TurnCase{158, 90, 173, 105},   // 22 degrees: one
                                           TurnCase{157, 90, 187, 120},   // 23 degrees: two
                                           TurnCase{187, 90, 187, 90},    // back by 7: none
                                           TurnCase{188, 90, 173, 75},    // back by 8: one
                                           TurnCase{90, 300, 180, 0},     // 390 starts again at 0
                                           TurnCase{90, 270, 180, 0},     // 360 is 0
                                           TurnCase{360, 90, 180, 270},   // -90 gains a full turn
                                           TurnCase{360, 180, 180, 0},    // exactly 0 stays
                                           TurnCase{90, 360, 180, 90},    // 360 counts as 0 first
                                           TurnCase{90, -15, 180, 90},    // below 0 counts as 0 first
                                           TurnCase{360, 0, 180, 180},    // -180 gains a full turn
                                           TurnCase{540, 0, 180, 0},      // -360 is 0
                                           TurnCase{600, 15, 180, 0},     // -405 is 0, with 28 steps back
                                           TurnCase{-7200, 10, 180, 0})); // far past a turn is 0

TEST(HandTurn, AngleIsComparedWithoutWrapping) {
    Desk desk;
    desk.session.bodyType = 1;
    desk.records.offPlayers[0] = playerAt(75, 79, "1", 90);
    desk.state.rotatePick = 100;
    desk.state.grabDX = 350;
    ASSERT_EQ(handAngle(desk.records, Side::Off, 0, 146, 100), 5);
    desk.move(146, 100);
    EXPECT_EQ(desk.state.grabDX, 350 - 23 * 15);
    EXPECT_EQ(desk.records.offPlayers[0].angle, 90 - 23 * 15 + 360);
}

TEST(HandTurn, PlayerThatIsGoneIsPassedOver) {
    Desk desk;
    desk.session.bodyType = 1;
    desk.state.rotatePick = 207;
    const auto before = desk.records;
    desk.move(50, 60);
    EXPECT_EQ(desk.records, before);
    EXPECT_EQ(desk.state.rotatePick, 207);
    EXPECT_EQ(desk.countOf("redraw"), 0U);
}

TEST(HandTurn, ThroughAGestureEachStepIsFifteenDegrees) {
    Desk desk;
    desk.session.bodyType = 1;
    desk.press(125, 101);
    ASSERT_EQ(desk.state.rotatePick, 100);
    for (float x = 125; x >= 101; x -= 1) {
        desk.drag(x, 101);
        EXPECT_EQ(desk.records.offPlayers[0].angle % 15, 0);
    }
    EXPECT_EQ(desk.records.offPlayers[0].angle, 135);
    desk.release();
    EXPECT_EQ(desk.state.rotatePick, -1);
    EXPECT_EQ(desk.state.grabDX, 0);
}

} // namespace
} // namespace zeltrona::editor
