#include "tests/editor/editor_desk.h"

#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;

constexpr char kFull[] = "message Max number of points in free hand movement is 1000!\r\n"
                         "Next time,increase speed of movement.";

void noChange(Desk&) {}

/// The ball at (300, 250), held at (310, 255).
void ballHeld(Desk& d) {
    d.press(310, 255);
}

/// The offence player at (100, 100), held at (110, 105).
void offenceHeld(Desk& d) {
    d.press(110, 105);
}

void defenceHeld(Desk& d) {
    d.press(210, 105);
}

void fillPath(std::vector<document::PathRec>& paths) {
    paths = {{0, std::vector<document::PointF>(902, {5, 5})}};
}

const StepCase kSteps[] = {
    {"Step10BallFollowsTheLeftButton",
     ballHeld,
     [](Desk& d) { d.drag(51.25F, 60); },
     [](Desk& d) {
         d.records.balls[0] = {41.25F, 55};
     },
     {"status  (51.25,60) -Click and hold on the ball to move it. ", "redraw 51.25 60"}},
    {"Step10BallMovesWithThePlayer",
     [](Desk& d) {
         ballHeld(d);
         d.state.pickedOff = 0;
         d.state.grabDX = -3;
         d.state.grabDY = 4;
     },
     [](Desk& d) { d.drag(50, 60); },
     [](Desk& d) {
         d.records.balls[0] = {40, 55};
         d.records.offPlayers[0].x = 47;
         d.records.offPlayers[0].y = 64;
     },
     {"status  (50,60) -Click and hold on the ball to move it. ", "redraw 50 60", "redraw 50 60"}},
    {"Step10CurvedDragRecordsTheBallsPath",
     [](Desk& d) {
         d.host.isCurveChecked = true;
         ballHeld(d);
     },
     [](Desk& d) { d.drag(50, 60); },
     [](Desk& d) {
         d.records.balls[0] = {40, 55};
         d.records.ballPaths = {{0, {{40, 55}}}};
     },
     {"status  (50,60) -[32]", "redraw 50 60"}},
    {"Step10FullPathEndsTheMoveWithoutARedraw",
     [](Desk& d) {
         d.host.isCurveChecked = true;
         ballHeld(d);
         d.state.pickedOff = 0;
         fillPath(d.records.ballPaths);
     },
     [](Desk& d) { d.drag(50, 60); },
     [](Desk& d) {
         d.records.balls[0] = {40, 55};
     },
     {"status  (50,60) -[32]", kFull}},
    {"Step10BallThatIsGoneIsPassedOver",
     [](Desk& d) {
         offenceHeld(d);
         d.state.pickedBall = 5;
     },
     [](Desk& d) { d.drag(111, 105); },
     [](Desk& d) { d.records.offPlayers[0].x = 101; },
     {"status  (111,105) -Click and hold on the ball to move it. ", "redraw 111 105"}},

    {"Step11WithoutTheLeftButtonNothingIsDragged",
     offenceHeld,
     [](Desk& d) { d.move(50, 60, kRight); },
     noChange,
     {"status  (50,60) -Click and hold on the player's icon to move it. "}},
    {"Step11BothButtonsAreNotTheLeftButton",
     offenceHeld,
     [](Desk& d) { d.move(50, 60, kLeft + kRight); },
     noChange,
     {"status  (50,60) -Click and hold on the player's icon to move it. "}},
    {"Step11NothingPickedRedrawsNothing",
     [](Desk&) {},
     [](Desk& d) { d.drag(50, 60); },
     noChange,
     {"status  (50,60) -[31]"}},

    {"Step12OffencePlayerFollows",
     offenceHeld,
     [](Desk& d) { d.drag(60.25F, 70); },
     [](Desk& d) {
         d.records.offPlayers[0].x = 50.25F;
         d.records.offPlayers[0].y = 65;
     },
     {"status  (60.25,70) -Click and hold on the player's icon to move it. ", "redraw 60.25 70"}},
    {"Step12CurvedDragRecordsTheOffencePath",
     [](Desk& d) {
         d.host.isCurveChecked = true;
         offenceHeld(d);
     },
     [](Desk& d) { d.drag(60, 70); },
     [](Desk& d) {
         d.records.offPlayers[0].x = 50;
         d.records.offPlayers[0].y = 65;
         d.records.offPaths = {{0, {{50, 65}}}};
     },
     {"status  (60,70) -[32]", "redraw 60 70"}},
    {"Step12FullPathEndsTheMoveWithoutARedraw",
     [](Desk& d) {
         d.host.isCurveChecked = true;
         offenceHeld(d);
         d.state.pickedDef = 0;
         fillPath(d.records.offPaths);
     },
     [](Desk& d) { d.drag(60, 70); },
     [](Desk& d) {
         d.records.offPlayers[0].x = 50;
         d.records.offPlayers[0].y = 65;
     },
     {"status  (60,70) -[32]", kFull}},
    {"Step12PlayerThatIsGoneIsPassedOver",
     [](Desk& d) {
         defenceHeld(d);
         d.state.pickedOff = 11;
     },
     [](Desk& d) { d.drag(60, 70); },
     [](Desk& d) {
         d.records.defPlayers[0].x = 50;
         d.records.defPlayers[0].y = 65;
     },
     {"status  (60,70) -Click and hold on the player's icon to move it. ", "redraw 60 70"}},

    {"Step13DefencePlayerFollows",
     defenceHeld,
     [](Desk& d) { d.drag(60, 70); },
     [](Desk& d) {
         d.records.defPlayers[0].x = 50;
         d.records.defPlayers[0].y = 65;
     },
     {"status  (60,70) -Click and hold on the player's icon to move it. ", "redraw 60 70"}},
    {"Step13GrabOffsetsAreSharedWithTheOffence",
     [](Desk& d) {
         defenceHeld(d);
         d.state.pickedOff = 0;
     },
     [](Desk& d) { d.drag(60, 70); },
     [](Desk& d) {
         d.records.offPlayers[0].x = d.records.defPlayers[0].x = 50;
         d.records.offPlayers[0].y = d.records.defPlayers[0].y = 65;
     },
     {"status  (60,70) -Click and hold on the player's icon to move it. ", "redraw 60 70"}},
    {"Step13CurvedDragRecordsTheDefencePath",
     [](Desk& d) {
         d.host.isCurveChecked = true;
         defenceHeld(d);
     },
     [](Desk& d) { d.drag(60, 70); },
     [](Desk& d) {
         d.records.defPlayers[0].x = 50;
         d.records.defPlayers[0].y = 65;
         d.records.defPaths = {{0, {{50, 65}}}};
     },
     {"status  (60,70) -[32]", "redraw 60 70"}},
    {"Step13FullPathEndsTheMoveWithoutARedraw",
     [](Desk& d) {
         d.host.isCurveChecked = true;
         defenceHeld(d);
         fillPath(d.records.defPaths);
     },
     [](Desk& d) { d.drag(60, 70); },
     [](Desk& d) {
         d.records.defPlayers[0].x = 50;
         d.records.defPlayers[0].y = 65;
     },
     {"status  (60,70) -[32]", kFull}},
};

class Drag : public ::testing::TestWithParam<StepCase> {};

TEST_P(Drag, FollowsTheOrder) {
    checkStep(GetParam());
}

INSTANTIATE_TEST_SUITE_P(, Drag, ::testing::ValuesIn(kSteps),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace zeltrona::editor
