#include "tests/editor/editor_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;
using document::LineRec;

constexpr char kRefusal[] = "message It not allowed to make curved movement in first sequence";

void noChange(Desk&) {}

void bodies(Desk& d) {
    d.session.bodyType = 1;
}

/// A line of tool 1 with two points, pointer up.
void lineUnderWay(Desk& d) {
    d.takeTool(1);
    d.press(20, 20);
    d.press(60, 20);
}

void lineEnded(Desk& d) {
    d.state.lineInProgress = false;
    d.state.editLineIndex = -1;
    d.state.lineCurved = false;
}

void toolUp(Desk& d) {
    d.state.toolDown.fill(false);
    d.state.currTool = -1;
}

const StepCase kPress[] = {
    {"Step01TimerStopsFirst",
     [](Desk&) {},
     [](Desk& d) { d.press(50, 300); },
     noChange,
     {"timer off", "status  (50,300) -[31]"}},

    {"Step02ToolIsReadFromTheFirstButtonDown",
     [](Desk& d) {
         d.state.currTool = 3;
         d.state.toolDown[10] = true;
     },
     [](Desk& d) { d.press(50, 300); },
     [](Desk& d) { d.state.currTool = 10; },
     {"timer off", "status  (50,300) -[31]"}},
    {"Step02NoButtonDownIsNoTool",
     [](Desk& d) { d.state.currTool = 9; },
     [](Desk& d) { d.press(50, 300); },
     [](Desk& d) { d.state.currTool = -1; },
     {"timer off", "status  (50,300) -[31]"}},

    {"Step03RightPressEndsTheLineWithoutAPoint",
     lineUnderWay,
     [](Desk& d) { d.press(110, 110, kRight); },
     lineEnded,
     {"timer off", "redraw 0 0"}},
    {"Step03AltPressEndsTheLineWithoutAPoint",
     lineUnderWay,
     [](Desk& d) { d.press(110, 110, kLeft, kAlt); },
     lineEnded,
     {"timer off", "redraw 0 0"}},
    {"Step03AltWithShiftExtendsTheLine",
     lineUnderWay,
     [](Desk& d) { d.press(80, 90, kLeft, kAlt + kShift); },
     [](Desk& d) {
         d.records.lines[0].pts.push_back({80, 90});
     },
     {"timer off", "redraw 80 90"}},
    {"Step03RightPressDropsALineOfOnePoint",
     [](Desk& d) {
         d.takeTool(0);
         d.press(20, 20);
     },
     [](Desk& d) { d.press(60, 60, kRight); },
     [](Desk& d) {
         lineEnded(d);
         document::resetLines(d.records.lines);
     },
     {"timer off", "redraw 0 0"}},

    {"Step04LineToolStartsALineWithoutARedraw",
     [](Desk& d) {
         d.takeTool(4);
         d.host.isCurveChecked = true;
     },
     [](Desk& d) { d.press(110.5F, 110); },
     [](Desk& d) {
         d.state.lineInProgress = true;
         d.state.lineTool = 4;
         d.state.lineCurved = true;
         d.state.editLineIndex = 0;
         d.records.lines = {LineRec{4, 77, true, {{110.5F, 110}}}};
     },
     {"timer off"}},
    {"Step04RightPressStartsALineToo",
     [](Desk& d) { d.takeTool(0); },
     [](Desk& d) { d.press(30, 30, kRight); },
     [](Desk& d) {
         d.state.lineInProgress = true;
         d.state.editLineIndex = 0;
         d.records.lines = {LineRec{0, 77, false, {{30, 30}}}};
     },
     {"timer off"}},
    {"Step04CurvedLineMayBeginInTheFirstFrame",
     [](Desk& d) {
         d.takeTool(0);
         d.session.currFrame = 1;
         d.host.isCurveChecked = true;
     },
     [](Desk& d) { d.press(105, 105); },
     [](Desk& d) {
         d.state.lineInProgress = true;
         d.state.lineCurved = true;
         d.state.editLineIndex = 0;
         d.records.lines = {LineRec{0, 77, true, {{105, 105}}}};
     },
     {"timer off"}},

    {"Step05PressExtendsTheLineAndRedrawsAtThePointer",
     lineUnderWay,
     [](Desk& d) { d.press(110, 110); },
     [](Desk& d) {
         d.records.lines[0].pts.push_back({110, 110});
     },
     {"timer off", "redraw 110 110"}},
    {"Step05ChangedCurveBoxEndsTheLineWithoutAPoint",
     [](Desk& d) {
         lineUnderWay(d);
         d.host.isCurveChecked = true;
     },
     [](Desk& d) { d.press(110, 110); },
     lineEnded,
     {"timer off", "redraw 0 0"}},
    {"Step05ChangedToolEndsTheLineWithoutAPoint",
     [](Desk& d) {
         lineUnderWay(d);
         d.click(2);
     },
     [](Desk& d) { d.press(110, 110); },
     lineEnded,
     {"timer off", "redraw 0 0"}},
    {"Step05ToolPutUpEndsTheLineWithoutAPoint",
     [](Desk& d) {
         lineUnderWay(d);
         d.click(1);
     },
     [](Desk& d) { d.press(110, 110); },
     lineEnded,
     {"timer off", "redraw 0 0"}},
    {"Step05BallTakenInALineIsNotDropped",
     [](Desk& d) {
         lineUnderWay(d);
         d.click(5);
     },
     [](Desk& d) { d.press(110, 110); },
     lineEnded,
     {"timer off", "redraw 0 0"}},
    {"Step05ColorAndBackRecolorsTheWholeLine",
     [](Desk& d) {
         lineUnderWay(d);
         d.host.colors = {5};
         d.click(10);
         d.click(1);
     },
     [](Desk& d) { d.press(90, 90); },
     [](Desk& d) {
         d.records.lines[0].pts.push_back({90, 90});
         d.records.lines[0].color = 5;
     },
     {"timer off", "redraw 90 90"}},

    {"Step06BallIsDroppedAndPickedByTheSamePress",
     [](Desk& d) { d.click(5); },
     [](Desk& d) { d.press(50.5F, 300); },
     [](Desk& d) {
         toolUp(d);
         d.records.balls.back() = {50.5F, 300};
         d.state.pickedBall = 1;
         d.state.ballOriginX = 50;
         d.state.ballOriginY = 300;
     },
     {"timer off", "button 5 up", "redraw 50.5 300",
      "status  (50.5,300) -Click and hold on the ball to move it. "}},
    {"Step06DroppingInTheFirstFrameWithTheCurveBoxTellsTheRule",
     [](Desk& d) {
         d.click(5);
         d.session.currFrame = 1;
         d.host.isCurveChecked = true;
     },
     [](Desk& d) { d.press(50, 300); },
     [](Desk& d) {
         toolUp(d);
         d.records.balls.back() = {50, 300};
     },
     {"timer off", "button 5 up", "redraw 50 300", kRefusal}},
    {"Step06WithoutABallTheToolStaysAndThePressGoesOn",
     [](Desk& d) {
         d.takeTool(5);
         document::resetBalls(d.records.balls);
     },
     [](Desk& d) { d.press(50, 300); },
     noChange,
     {"timer off", "status  (50,300) -[31]"}},

    {"Step07TriangleIsDroppedInTheLineColorOfNow",
     [](Desk& d) {
         d.click(6);
         d.session.colorLine = 99;
     },
     [](Desk& d) { d.press(50, 300); },
     [](Desk& d) {
         toolUp(d);
         d.records.triangles = {{50, 300, 99}};
     },
     {"timer off", "button 6 up", "redraw 50 300", "status  (50,300) -[31]"}},
    {"Step07DroppingOnAPlayerPicksIt",
     [](Desk& d) { d.click(6); },
     [](Desk& d) { d.press(110, 105); },
     [](Desk& d) {
         toolUp(d);
         d.records.triangles = {{110, 105, 77}};
         d.state.pickedOff = 0;
         d.state.originX = 100;
         d.state.originY = 100;
         d.state.grabDX = -10;
         d.state.grabDY = -5;
     },
     {"timer off", "button 6 up", "redraw 110 105"}},
    {"Step07WithoutATriangleTheToolStays",
     [](Desk& d) { d.takeTool(6); },
     [](Desk& d) { d.press(50, 300); },
     noChange,
     {"timer off", "status  (50,300) -[31]"}},

    {"Step08TextIsDropped",
     [](Desk& d) {
         d.takeTool(7);
         d.records.txtPics = {{"a", 1, 2, "Arial", 8, 0, false, false, false, false}};
     },
     [](Desk& d) { d.press(50, 300); },
     [](Desk& d) {
         toolUp(d);
         d.records.txtPics[0].x = 50;
         d.records.txtPics[0].y = 300;
     },
     {"timer off", "button 7 up", "redraw 50 300", "status  (50,300) -[31]"}},
    {"Step08WithoutATextTheToolStays",
     [](Desk& d) { d.takeTool(7); },
     [](Desk& d) { d.press(50, 300); },
     noChange,
     {"timer off", "status  (50,300) -[31]"}},

    {"Step09FirstCornerGoesOnToPicking",
     [](Desk& d) {
         d.host.colors = {6};
         d.click(8);
     },
     [](Desk& d) { d.press(110, 105); },
     [](Desk& d) {
         d.state.shadowSizing = true;
         d.records.shadows[0].x = 110;
         d.records.shadows[0].y = 105;
         d.state.pickedOff = 0;
         d.state.originX = 100;
         d.state.originY = 100;
         d.state.grabDX = -10;
         d.state.grabDY = -5;
     },
     {"timer off"}},
    {"Step09SecondCornerIsRoundedAndEndsThePress",
     [](Desk& d) {
         d.takeTool(8);
         d.state.shadowSizing = true;
         d.records.shadows = {{10, 10, 0, 0, 6}, {20, 30, 0, 0, 6}};
     },
     [](Desk& d) { d.press(110.5F, 107.5F); },
     [](Desk& d) {
         toolUp(d);
         d.state.shadowSizing = false;
         d.records.shadows[1].w = 110;
         d.records.shadows[1].h = 108;
     },
     {"timer off", "button 8 up"}},

    {"Step10AnotherToolBetweenTheCornersIsPutUpToo",
     [](Desk& d) {
         d.records.balls.push_back({50, 300});
         d.takeTool(9);
         d.state.shadowSizing = true;
     },
     [](Desk& d) { d.press(10, 300); },
     [](Desk& d) {
         toolUp(d);
         d.state.shadowSizing = false;
     },
     {"timer off", "button 9 up", "button 8 up", "status  (10,300) -[31]"}},
    {"Step10BallTakenBetweenTheCornersIsDroppedFirst",
     [](Desk& d) {
         d.click(5);
         d.state.shadowSizing = true;
     },
     [](Desk& d) { d.press(50, 300); },
     [](Desk& d) {
         toolUp(d);
         d.state.shadowSizing = false;
         d.records.balls.back() = {50, 300};
         d.state.pickedBall = 1;
         d.state.ballOriginX = 50;
         d.state.ballOriginY = 300;
     },
     {"timer off", "button 5 up", "redraw 50 300", "button 8 up",
      "status  (50,300) -Click and hold on the ball to move it. "}},
    {"Step10LineTakenBetweenTheCornersComesFirst",
     [](Desk& d) {
         d.takeTool(2);
         d.state.shadowSizing = true;
     },
     [](Desk& d) { d.press(50, 300); },
     [](Desk& d) {
         d.state.lineInProgress = true;
         d.state.lineTool = 2;
         d.state.editLineIndex = 0;
         d.records.lines = {LineRec{2, 77, false, {{50, 300}}}};
     },
     {"timer off"}},

    {"Step11DeleteEndsThePressWithoutAPick",
     [](Desk& d) {
         d.takeTool(9);
         d.records.triangles = {{105, 115, 1}};
     },
     [](Desk& d) { d.press(110, 110); },
     [](Desk& d) { document::resetTriangles(d.records.triangles); },
     {"timer off", "remove triangle 0", "redraw 0 0"}},
    {"Step11DeleteOfNothingDoesNothing",
     [](Desk& d) { d.takeTool(9); },
     [](Desk& d) { d.press(110, 110, kRight); },
     noChange,
     {"timer off"}},

    {"Step12PressForgetsTheHand",
     [](Desk& d) { d.state.rotatePick = 103; },
     [](Desk& d) { d.press(50, 300); },
     [](Desk& d) { d.state.rotatePick = -1; },
     {"timer off", "status  (50,300) -[31]"}},

    {"Step13OffencePlayerIsPickedWithItsRoundedOrigin",
     [](Desk& d) {
         d.records.offPlayers[0].x = 100.5F;
         d.records.offPlayers[0].y = 101.5F;
         d.state.pickedDef = 0;
     },
     [](Desk& d) { d.press(110, 105); },
     [](Desk& d) {
         d.state.pickedDef = -1;
         d.state.pickedOff = 0;
         d.state.originX = 100;
         d.state.originY = 102;
         d.state.grabDX = -10;
         d.state.grabDY = -4;
     },
     {"timer off"}},
    {"Step13CurvedMoveInTheFirstFrameIsRefused",
     [](Desk& d) {
         d.session.currFrame = 1;
         d.host.isCurveChecked = true;
         d.state.pickedDef = 0;
         d.records.balls = {{105, 105}};
     },
     [](Desk& d) { d.press(110, 110); },
     [](Desk& d) { d.state.pickedDef = -1; },
     {"timer off", kRefusal}},
    {"Step13CurvedMoveInALaterFrameIsAllowed",
     [](Desk& d) { d.host.isCurveChecked = true; },
     [](Desk& d) { d.press(100, 100); },
     [](Desk& d) {
         d.state.pickedOff = 0;
         d.state.originX = 100;
         d.state.originY = 100;
     },
     {"timer off"}},
    {"Step13BodyIsAHit",
     bodies,
     [](Desk& d) { d.press(125, 125); },
     [](Desk& d) {
         d.state.pickedOff = 0;
         d.state.originX = 100;
         d.state.originY = 100;
         d.state.grabDX = -25;
         d.state.grabDY = -25;
     },
     {"timer off"}},
    {"Step13HandIsGrippedAtItsAngle",
     bodies,
     [](Desk& d) { d.press(125, 105); },
     [](Desk& d) {
         d.state.rotatePick = 100;
         d.state.grabDX = 90;
     },
     {"timer off", "status  (125,105) -Click and hold on the player's hand to rotate it. "}},
    {"Step13LastHandWins",
     [](Desk& d) {
         bodies(d);
         d.records.offPlayers.push_back(playerAt(100, 70));
     },
     [](Desk& d) { d.press(125, 107); },
     [](Desk& d) {
         d.state.rotatePick = 101;
         d.state.grabDX = 270;
     },
     {"timer off", "status  (125,107) -Click and hold on the player's hand to rotate it. "}},

    {"Step14DefencePlayerIsPicked",
     [](Desk& d) {
         d.state.pickedOff = 0;
         d.state.rotatePick = 100;
     },
     [](Desk& d) { d.press(226, 126); },
     [](Desk& d) {
         d.state.pickedOff = -1;
         d.state.rotatePick = -1;
         d.state.pickedDef = 0;
         d.state.originX = 200;
         d.state.originY = 100;
         d.state.grabDX = -26;
         d.state.grabDY = -26;
     },
     {"timer off"}},
    {"Step14CurvedMoveInTheFirstFrameIsRefused",
     [](Desk& d) {
         d.session.currFrame = 1;
         d.host.isCurveChecked = true;
         d.state.pickedOff = 0;
     },
     [](Desk& d) { d.press(210, 110); },
     [](Desk& d) { d.state.pickedOff = -1; },
     {"timer off", kRefusal}},
    {"Step14HandIsGrippedAtTwoHundred",
     bodies,
     [](Desk& d) { d.press(205, 125); },
     [](Desk& d) {
         d.state.rotatePick = 200;
         d.state.grabDX = 180;
     },
     {"timer off", "status  (205,125) -Click and hold on the player's hand to rotate it. "}},

    {"Step15LastBallHitIsPickedBesideThePlayer",
     [](Desk& d) {
         d.records.balls = {{95, 95}, {98.5F, 99.5F}, {300, 200}};
     },
     [](Desk& d) { d.press(101, 102); },
     [](Desk& d) {
         d.state.pickedOff = 0;
         d.state.originX = 100;
         d.state.originY = 100;
         d.state.grabDX = -1;
         d.state.grabDY = -2;
         d.state.pickedBall = 1;
         d.state.ballOriginX = 98;
         d.state.ballOriginY = 100;
         d.state.ballGrabDX = -2;
         d.state.ballGrabDY = -2;
     },
     {"timer off"}},
    {"Step15BallLetsTheHandGo",
     [](Desk& d) {
         bodies(d);
         d.records.balls = {{120, 100}};
     },
     [](Desk& d) { d.press(125, 105); },
     [](Desk& d) {
         d.state.grabDX = 90;
         d.state.pickedBall = 0;
         d.state.ballOriginX = 120;
         d.state.ballOriginY = 100;
         d.state.ballGrabDX = -5;
         d.state.ballGrabDY = -5;
     },
     {"timer off", "status  (125,105) -Click and hold on the ball to move it. "}},
    {"Step15CurvedMoveInTheFirstFrameIsRefused",
     [](Desk& d) {
         d.session.currFrame = 1;
         d.host.isCurveChecked = true;
         d.state.pickedBall = 0;
     },
     [](Desk& d) { d.press(310, 260); },
     [](Desk& d) { d.state.pickedBall = -1; },
     {"timer off", kRefusal}},
    {"Step15BallsBoxIsTwentySixWithBodiesToo",
     bodies,
     [](Desk& d) { d.press(327, 260); },
     noChange,
     {"timer off", "status  (327,260) -[31]"}},

    {"Step16ShiftTakesHoldOfAllThatIsPicked",
     [](Desk& d) {
         d.state.pickedOff = 0;
         d.state.groupOff = -1;
         d.state.originX = 90;
         d.state.originY = 91;
     },
     [](Desk& d) { d.press(310, 255, kLeft, kShift); },
     [](Desk& d) {
         d.state.groupOff = 0;
         d.state.grabDX = -210;
         d.state.grabDY = -155;
         d.state.pickedBall = 0;
         d.state.ballOriginX = 300;
         d.state.ballOriginY = 250;
         d.state.ballGrabDX = -10;
         d.state.ballGrabDY = -5;
     },
     {"timer off"}},
    {"Step16ShiftKeepsTheDefender",
     [](Desk& d) {
         d.records.defPlayers.push_back(playerAt(50, 60));
         d.state.pickedDef = 1;
         d.state.pickedBall = 0;
         d.state.groupDef = -1;
     },
     [](Desk& d) { d.press(10, 300, kLeft, kShift); },
     [](Desk& d) {
         d.state.groupDef = 1;
         d.state.grabDX = 40;
         d.state.grabDY = -240;
         d.state.ballGrabDX = 290;
         d.state.ballGrabDY = -50;
     },
     {"timer off"}},
    {"Step16PickThatIsGoneIsKeptAndPassedOver",
     [](Desk& d) {
         d.state.pickedOff = 8;
         d.state.pickedBall = 9;
         d.state.grabDX = 3;
     },
     [](Desk& d) { d.press(10, 300, kLeft, kShift); },
     [](Desk& d) { d.state.groupOff = 8; },
     {"timer off"}},
    {"Step16AnyOtherKeyIsNoShift",
     [](Desk& d) { d.state.pickedOff = 0; },
     [](Desk& d) { d.press(310, 255, kLeft, kShift + 2); },
     [](Desk& d) {
         d.state.pickedBall = 0;
         d.state.ballOriginX = 300;
         d.state.ballOriginY = 250;
         d.state.ballGrabDX = -10;
         d.state.ballGrabDY = -5;
     },
     {"timer off"}},

    {"Step17RightPressOnNothingOpensTheMenu",
     [](Desk&) {},
     [](Desk& d) { d.press(50, 300, kRight); },
     noChange,
     {"timer off", "status  (50,300) -[31]", "popup"}},
    {"Step17RightPressOnABallOpensTheMenu",
     [](Desk&) {},
     [](Desk& d) { d.press(300, 250, kRight); },
     [](Desk& d) {
         d.state.pickedBall = 0;
         d.state.ballOriginX = 300;
         d.state.ballOriginY = 250;
     },
     {"timer off", "status  (300,250) -Click and hold on the ball to move it. ", "popup"}},
    {"Step17RightPressOnACircleShowsNothing",
     [](Desk&) {},
     [](Desk& d) { d.press(100, 100, kRight); },
     [](Desk& d) {
         d.state.pickedOff = 0;
         d.state.originX = 100;
         d.state.originY = 100;
     },
     {"timer off"}},
    {"Step17RightPressOnABodyOpensThePanel",
     [](Desk& d) {
         bodies(d);
         d.records.offPlayers.push_back(playerAt(20, 200));
     },
     [](Desk& d) { d.press(45, 225.5F, kRight); },
     [](Desk& d) {
         d.state.pickedOff = 1;
         d.state.originX = 20;
         d.state.originY = 200;
         d.state.grabDX = -25;
         d.state.grabDY = -26;
         d.state.bodyToolSide = "off";
         d.state.bodyToolIndex = "1";
     },
     {"timer off", "panel 45 225.5"}},
    {"Step17RightPressOnADefendersBodyOpensThePanel",
     bodies,
     [](Desk& d) { d.press(225, 125, kRight); },
     [](Desk& d) {
         d.state.pickedDef = 0;
         d.state.originX = 200;
         d.state.originY = 100;
         d.state.grabDX = -25;
         d.state.grabDY = -25;
         d.state.bodyToolSide = "def";
         d.state.bodyToolIndex = "0";
     },
     {"timer off", "panel 225 125"}},
    {"Step17OffenceGoesFirstInThePanel",
     [](Desk& d) {
         bodies(d);
         d.state.pickedOff = 0;
         d.state.pickedDef = 0;
     },
     [](Desk& d) { d.press(20, 300, kRight); },
     [](Desk& d) {
         d.state.bodyToolSide = "off";
         d.state.bodyToolIndex = "0";
     },
     {"timer off", "panel 20 300"}},
};

class Press : public ::testing::TestWithParam<StepCase> {};

TEST_P(Press, FollowsTheOrder) {
    checkStep(GetParam());
}

INSTANTIATE_TEST_SUITE_P(, Press, ::testing::ValuesIn(kPress),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace zeltrona::editor
