#include "tests/editor/editor_desk.h"

#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;
using document::LineRec;

void noChange(Desk&) {}

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

const StepCase kSteps[] = {
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
};

class PressOnLines : public ::testing::TestWithParam<StepCase> {};

TEST_P(PressOnLines, FollowsTheOrder) {
    checkStep(GetParam());
}

INSTANTIATE_TEST_SUITE_P(, PressOnLines, ::testing::ValuesIn(kSteps),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace zeltrona::editor
