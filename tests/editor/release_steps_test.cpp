#include "tests/editor/editor_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;

void noChange(Desk&) {}

/// All picked and moved away from where they were held.
void allPicked(Desk& d) {
    d.state.pickedOff = 0;
    d.state.pickedDef = 0;
    d.state.pickedBall = 0;
    d.state.originX = 31;
    d.state.originY = 32;
    d.state.grabDX = 1;
    d.state.grabDY = 2;
    d.state.ballOriginX = 41;
    d.state.ballOriginY = 42;
    d.state.ballGrabDX = 3;
    d.state.ballGrabDY = 4;
}

void allLetGo(Desk& d) {
    d.state = EditorState{};
    d.state.groupOff = -1;
    d.state.groupDef = -1;
}

const StepCase kReleases[] = {
    {"Step01TimerStopsFirst",
     [](Desk&) {},
     [](Desk& d) { d.release(); },
     allLetGo,
     {"timer off", "redraw 0 0"}},
    {"Step02HandIsLetGo",
     [](Desk& d) {
         d.state.rotatePick = 105;
         d.state.grabDX = 75;
     },
     [](Desk& d) { d.release(); },
     allLetGo,
     {"timer off", "redraw 0 0"}},
    {"Step03LineGoesOnOverTheRelease",
     [](Desk& d) {
         allPicked(d);
         d.state.lineInProgress = true;
         d.state.rotatePick = 105;
     },
     [](Desk& d) { d.release(); },
     [](Desk& d) { d.state.rotatePick = -1; },
     {"timer off"}},
    {"Step04WithoutTheCurveBoxAllStaysWhereItIs",
     allPicked,
     [](Desk& d) { d.release(); },
     allLetGo,
     {"timer off", "redraw 0 0"}},
    {"Step04WithTheCurveBoxAllGoesBack",
     [](Desk& d) {
         allPicked(d);
         d.host.isCurveChecked = true;
     },
     [](Desk& d) { d.release(); },
     [](Desk& d) {
         allLetGo(d);
         d.records.offPlayers[0].x = d.records.defPlayers[0].x = 31;
         d.records.offPlayers[0].y = d.records.defPlayers[0].y = 32;
         d.records.balls[0] = {41, 42};
     },
     {"timer off", "redraw 0 0"}},
    {"Step04OtherKeysThanShiftLetGo",
     allPicked,
     [](Desk& d) { d.release(kShift + kAlt); },
     allLetGo,
     {"timer off", "redraw 0 0"}},
    {"Step04PicksThatAreGoneArePassedOver",
     [](Desk& d) {
         allPicked(d);
         d.host.isCurveChecked = true;
         d.state.pickedOff = 4;
         d.state.pickedDef = 11;
         d.state.pickedBall = 100;
     },
     [](Desk& d) { d.release(); },
     allLetGo,
     {"timer off", "redraw 0 0"}},
    {"Step05ShiftKeepsAllThatIsPicked",
     [](Desk& d) {
         allPicked(d);
         d.host.isCurveChecked = true;
         d.state.rotatePick = 105;
     },
     [](Desk& d) { d.release(kShift); },
     [](Desk& d) { d.state.rotatePick = -1; },
     {"timer off", "redraw 0 0"}},
    {"Step06ToolAndShadowAreLeftAlone",
     [](Desk& d) {
         d.takeTool(8);
         d.state.shadowSizing = true;
     },
     [](Desk& d) { d.release(); },
     [](Desk& d) {
         d.state.groupOff = -1;
         d.state.groupDef = -1;
     },
     {"timer off", "redraw 0 0"}},
    {"ButtonAndPlaceCountForNothing",
     [](Desk&) {},
     [](Desk& d) { pic_MouseUp(d.editor, kRight, 0, -50, 9000); },
     allLetGo,
     {"timer off", "redraw 0 0"}},
    {"LineStaysUntouched",
     [](Desk& d) {
         d.takeTool(1);
         d.press(10, 10);
     },
     [](Desk& d) { d.release(); },
     noChange,
     {"timer off"}},
};

class Release : public ::testing::TestWithParam<StepCase> {};

TEST_P(Release, FollowsTheOrder) {
    checkStep(GetParam());
}

INSTANTIATE_TEST_SUITE_P(, Release, ::testing::ValuesIn(kReleases),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace zeltrona::editor
