#include "tests/editor/editor_desk.h"

#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;

constexpr char kRefusal[] = "message It not allowed to make curved movement in first sequence";

void noChange(Desk&) {}

void bodies(Desk& d) {
    d.session.bodyType = 1;
}

const StepCase kSteps[] = {
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

class PressThatPicks : public ::testing::TestWithParam<StepCase> {};

TEST_P(PressThatPicks, FollowsTheOrder) {
    checkStep(GetParam());
}

INSTANTIATE_TEST_SUITE_P(, PressThatPicks, ::testing::ValuesIn(kSteps),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace zeltrona::editor
