#include "tests/editor/editor_desk.h"

#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;
using document::LineRec;

constexpr char kRefusal[] = "message It not allowed to make curved movement in first sequence";

void noChange(Desk&) {}

void toolUp(Desk& d) {
    d.state.toolDown.fill(false);
    d.state.currTool = -1;
}

const StepCase kSteps[] = {
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
};

class PressWithAParkedObject : public ::testing::TestWithParam<StepCase> {};

TEST_P(PressWithAParkedObject, FollowsTheOrder) {
    checkStep(GetParam());
}

INSTANTIATE_TEST_SUITE_P(, PressWithAParkedObject, ::testing::ValuesIn(kSteps),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace zeltrona::editor
