#include "tests/editor/editor_desk.h"

#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;

void noChange(Desk&) {}

/// A hand of the offence player at (100, 100), gripped at 90 degrees, the player facing 90.
void handGripped(Desk& d) {
    d.session.bodyType = 1;
    d.press(125, 105);
}

/// The ball at (300, 250), held at (310, 255).
void ballHeld(Desk& d) {
    d.press(310, 255);
}

/// The offence player at (100, 100), held at (110, 105).
void offenceHeld(Desk& d) {
    d.press(110, 105);
}

void shadowsBegun(Desk& d) {
    d.records.shadows = {{1, 1, 9, 9, 6}, {20, 30, 10, 10, 6}};
    d.takeTool(8);
}

const StepCase kSteps[] = {
    {"Step01LeftOfTheBoardNothingHappens", offenceHeld, [](Desk& d) { d.drag(-0.5F, 20); }, noChange, {}},
    {"Step01AboveTheBoardNothingHappens", offenceHeld, [](Desk& d) { d.drag(20, -1); }, noChange, {}},
    {"Step01AtTheWidthNothingHappens", offenceHeld, [](Desk& d) { d.drag(363, 20); }, noChange, {}},
    {"Step01AtTheHeightNothingHappens", offenceHeld, [](Desk& d) { d.drag(20, 332); }, noChange, {}},
    {"Step01LastPixelIsOnTheBoard",
     offenceHeld,
     [](Desk& d) { d.drag(362, 331); },
     [](Desk& d) {
         d.records.offPlayers[0].x = 352;
         d.records.offPlayers[0].y = 326;
     },
     {"status  (362,331) -Click and hold on the player's icon to move it. ", "redraw 362 331"}},
    {"Step01CornerIsOnTheBoard",
     [](Desk&) {},
     [](Desk& d) { d.move(0, 0); },
     noChange,
     {"status  (0,0) -[31]"}},

    {"Step02ToolsHintWithCoordinates",
     [](Desk& d) { d.takeTool(9); },
     [](Desk& d) { d.move(7.5F, 8); },
     noChange,
     {"status  (7.5,8) -[29]"}},

    {"Step03HandTurnsWithoutAButton",
     handGripped,
     [](Desk& d) { d.move(105, 125); },
     [](Desk& d) {
         d.state.grabDX = 180;
         d.records.offPlayers[0].angle = 180;
     },
     {"status  (105,125) -Click and hold on the player's hand to rotate it. ", "redraw 0 0"}},
    {"Step03HandOfADefenderTurns",
     [](Desk& d) {
         d.session.bodyType = 1;
         d.press(225, 105);
     },
     [](Desk& d) { d.move(205, 125); },
     [](Desk& d) {
         d.state.grabDX = 180;
         d.records.defPlayers[0].angle = 180;
     },
     {"status  (205,125) -Click and hold on the player's hand to rotate it. ", "redraw 0 0"}},
    {"Step03LessThanHalfAStepTurnsNothing",
     handGripped,
     [](Desk& d) { d.move(123, 100); },
     noChange,
     {"status  (123,100) -Click and hold on the player's hand to rotate it. "}},
    {"Step03OtherGripsAreForgottenAndEndTheMove",
     [](Desk& d) {
         d.session.bodyType = 1;
         d.takeTool(5);
         d.state.rotatePick = 300;
     },
     [](Desk& d) { d.move(50, 50); },
     [](Desk& d) { d.state.rotatePick = -1; },
     {"status  (50,50) -[25]"}},
    {"Step03GripBelowHundredIsForgottenToo",
     [](Desk& d) {
         d.session.bodyType = 1;
         d.state.rotatePick = 99;
     },
     [](Desk& d) { d.move(50, 50); },
     [](Desk& d) { d.state.rotatePick = -1; },
     {"status  (50,50) -Click and hold on the player's hand to rotate it. "}},
    {"Step03IndexPastElevenIsTheFirstPlayer",
     [](Desk& d) {
         d.session.bodyType = 1;
         d.state.rotatePick = 112;
         d.state.grabDX = 90;
     },
     [](Desk& d) { d.move(105, 125); },
     [](Desk& d) {
         d.state.grabDX = 180;
         d.records.offPlayers[0].angle = 180;
     },
     {"status  (105,125) -Click and hold on the player's hand to rotate it. ", "redraw 0 0"}},
    {"Step03WithCirclesTheGripCountsForNothing",
     [](Desk& d) {
         offenceHeld(d);
         d.state.rotatePick = 100;
     },
     [](Desk& d) { d.drag(111, 105); },
     [](Desk& d) { d.records.offPlayers[0].x = 101; },
     {"status  (111,105) -Click and hold on the player's icon to move it. ", "redraw 111 105"}},
    {"Step03TurningComesBeforeALine",
     [](Desk& d) {
         d.takeTool(0);
         d.press(20, 20);
         d.session.bodyType = 1;
         d.state.rotatePick = 100;
         d.state.grabDX = 90;
     },
     [](Desk& d) { d.move(124, 100); },
     noChange,
     {"status  (124,100) -[23]"}},

    {"Step04LostReleaseLetsGoAndTheMoveGoesOn",
     [](Desk& d) {
         ballHeld(d);
         d.state.pickedOff = 0;
         d.state.groupOff = 0;
         d.state.groupDef = -1;
         d.takeTool(6);
         d.records.triangles = {{10, 10, 77}};
     },
     [](Desk& d) { d.move(50, 50); },
     [](Desk& d) {
         const EditorState fresh;
         d.state = fresh;
         d.takeTool(6);
         d.state.groupOff = -1;
         d.state.groupDef = -1;
         d.records.triangles = {{50, 50, 77}};
     },
     {"status  (50,50) -[26]", "timer off", "redraw 0 0", "redraw 50 50"}},
    {"Step04BeforeTheFirstReleaseABallAloneIsLetGo",
     ballHeld,
     [](Desk& d) { d.move(50, 50, kRight); },
     [](Desk& d) {
         d.state = EditorState{};
         d.state.groupOff = -1;
         d.state.groupDef = -1;
     },
     {"status  (50,50) -Click and hold on the ball to move it. ", "timer off", "redraw 0 0"}},
    {"Step04GroupedDefenderIsEnough",
     [](Desk& d) {
         ballHeld(d);
         d.state.groupOff = -1;
         d.state.groupDef = 0;
     },
     [](Desk& d) { d.move(50, 50); },
     [](Desk& d) {
         d.state = EditorState{};
         d.state.groupOff = -1;
         d.state.groupDef = -1;
     },
     {"status  (50,50) -Click and hold on the ball to move it. ", "timer off", "redraw 0 0"}},
    {"Step04BallWithoutAGroupStaysPicked",
     [](Desk& d) {
         ballHeld(d);
         d.state.groupOff = -1;
         d.state.groupDef = -1;
     },
     [](Desk& d) { d.move(50, 50); },
     noChange,
     {"status  (50,50) -Click and hold on the ball to move it. "}},
    {"Step04GroupWithoutABallStaysPicked",
     offenceHeld,
     [](Desk& d) { d.move(50, 50); },
     noChange,
     {"status  (50,50) -Click and hold on the player's icon to move it. "}},

    {"Step05RubberBandFollowsThePointer",
     [](Desk& d) {
         d.takeTool(3);
         d.press(20, 20);
     },
     [](Desk& d) { d.move(120, 150.5F); },
     noChange,
     {"status  (120,150.5) -[23]", "redraw 120 150.5"}},
    {"Step05LineComesBeforeAParkedBall",
     [](Desk& d) {
         d.takeTool(3);
         d.press(20, 20);
         d.click(5);
     },
     [](Desk& d) { d.move(120, 150); },
     noChange,
     {"status  (120,150) -[25]", "redraw 120 150"}},
    {"Step05LineComesBeforeADrag",
     [](Desk& d) {
         offenceHeld(d);
         d.state.lineInProgress = true;
     },
     [](Desk& d) { d.drag(120, 150); },
     noChange,
     {"status  (120,150) -Click and hold on the player's icon to move it. ", "redraw 120 150"}},

    {"Step06LastBallFollows",
     [](Desk& d) { d.click(5); },
     [](Desk& d) { d.move(120, 150.5F); },
     [](Desk& d) {
         d.records.balls[1] = {120, 150.5F};
     },
     {"status  (120,150.5) -[25]", "redraw 120 150.5"}},
    {"Step06WithoutABallTheMoveGoesOn",
     [](Desk& d) {
         offenceHeld(d);
         d.takeTool(5);
         document::resetBalls(d.records.balls);
     },
     [](Desk& d) { d.drag(111, 105); },
     [](Desk& d) { d.records.offPlayers[0].x = 101; },
     {"status  (111,105) -[25]", "redraw 111 105"}},
    {"Step07LastTriangleFollowsInTheLineColorOfNow",
     [](Desk& d) {
         d.records.triangles = {{1, 1, 1}};
         d.click(6);
         d.session.colorLine = 4;
     },
     [](Desk& d) { d.move(120, 150); },
     [](Desk& d) {
         d.records.triangles[1] = {120, 150, 4};
     },
     {"status  (120,150) -[26]", "redraw 120 150"}},
    {"Step07WithoutATriangleNothingFollows",
     [](Desk& d) { d.takeTool(6); },
     [](Desk& d) { d.move(120, 150); },
     noChange,
     {"status  (120,150) -[26]"}},
    {"Step08LastTextFollows",
     [](Desk& d) {
         d.takeTool(7);
         d.records.txtPics.assign(2, {"a", 1, 2, "Arial", 8, 0, false, false, false, false});
     },
     [](Desk& d) { d.move(120, 150); },
     [](Desk& d) {
         d.records.txtPics[1].x = 120;
         d.records.txtPics[1].y = 150;
     },
     {"status  (120,150) -[27]", "redraw 120 150"}},
    {"Step08WithoutATextNothingFollows",
     [](Desk& d) { d.takeTool(7); },
     [](Desk& d) { d.move(120, 150); },
     noChange,
     {"status  (120,150) -[27]"}},
    {"Step09LastShadowsSecondCornerFollowsRounded",
     [](Desk& d) {
         shadowsBegun(d);
         d.state.shadowSizing = true;
     },
     [](Desk& d) { d.move(120.5F, 151.5F); },
     [](Desk& d) {
         d.records.shadows[1].w = 120;
         d.records.shadows[1].h = 152;
     },
     {"status  (120.5,151.5) -[28]", "redraw 120.5 151.5"}},
    {"Step09BeforeTheFirstCornerNothingFollows",
     shadowsBegun,
     [](Desk& d) { d.move(120, 150); },
     noChange,
     {"status  (120,150) -[28]"}},
    {"Step09WithoutAShadowNothingFollows",
     [](Desk& d) {
         d.takeTool(8);
         d.state.shadowSizing = true;
     },
     [](Desk& d) { d.move(120, 150); },
     noChange,
     {"status  (120,150) -[28]"}},
};

class PointerMove : public ::testing::TestWithParam<StepCase> {};

TEST_P(PointerMove, FollowsTheOrder) {
    checkStep(GetParam());
}

INSTANTIATE_TEST_SUITE_P(, PointerMove, ::testing::ValuesIn(kSteps),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace zeltrona::editor
