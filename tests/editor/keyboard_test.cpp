#include "tests/editor/editor_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kEscape = 27;

document::LineRec twoPointLine() {
    return {1, 5, false, {{20, 20}, {40, 40}}};
}

TEST(Escape, DropsALineOfOnePoint) {
    Desk desk;
    desk.takeTool(0);
    desk.press(50, 50);
    Form_KeyDown(desk.editor, kEscape, 0);
    EXPECT_FALSE(hasLines(desk.records.lines));
    EXPECT_EQ(desk.records.lines.size(), 1U);
}

TEST(Escape, DropsALineOfManyPointsAndKeepsTheOthers) {
    Desk desk;
    desk.records.lines = {twoPointLine(), twoPointLine()};
    desk.host.isCurveChecked = true;
    desk.takeTool(2);
    for (int i = 0; i < 5; ++i) {
        desk.press(50.0F + static_cast<float>(i), 60);
    }
    desk.host.calls.clear();
    Form_KeyDown(desk.editor, kEscape, 0);
    EXPECT_THAT(desk.records.lines, ElementsAre(twoPointLine(), twoPointLine()));
    EXPECT_FALSE(desk.state.lineInProgress);
    EXPECT_FALSE(desk.state.lineCurved);
    EXPECT_EQ(desk.state.editLineIndex, -1);
    EXPECT_THAT(desk.host.calls, ElementsAre("redraw 0 0"));
}

TEST(Escape, LeavesTheLineToolSelected) {
    Desk desk;
    desk.takeTool(4);
    desk.press(50, 50);
    Form_KeyDown(desk.editor, kEscape, 0);
    EXPECT_EQ(desk.state.currTool, 4);
    EXPECT_TRUE(desk.state.toolDown[4]);
}

TEST(Escape, DoesNothingOutsideALine) {
    Desk desk;
    desk.click(tool::kBall);
    desk.state.shadowSizing = true;
    const EditorState before = desk.state;
    desk.host.calls.clear();
    Form_KeyDown(desk.editor, kEscape, 0);
    pic_KeyDown(desk.editor, kEscape, 0);
    EXPECT_EQ(desk.state, before);
    EXPECT_EQ(desk.records.balls.size(), 2U);
    EXPECT_THAT(desk.host.calls, IsEmpty());
}

TEST(Escape, OtherKeysDoNothing) {
    Desk desk;
    desk.takeTool(0);
    desk.press(50, 50);
    const EditorState before = desk.state;
    for (int key = 0; key < 256; ++key) {
        if (key == kEscape) {
            continue;
        }
        Form_KeyDown(desk.editor, key, 0);
        pic_KeyDown(desk.editor, key, 0);
    }
    EXPECT_EQ(desk.state, before);
    EXPECT_EQ(desk.records.lines[0].pts.size(), 1U);
}

TEST(Escape, OnPicDropsTheLineToo) {
    Desk desk;
    desk.takeTool(0);
    desk.press(50, 50);
    pic_KeyDown(desk.editor, kEscape, 0);
    EXPECT_FALSE(desk.state.lineInProgress);
    EXPECT_FALSE(hasLines(desk.records.lines));
}

TEST(Escape, AfterAFrameChangeNeverLengthensTheLines) {
    Desk desk;
    desk.records.lines.assign(6, twoPointLine());
    desk.takeTool(0);
    desk.press(50, 50);
    desk.records.lines.assign(2, twoPointLine());
    Form_KeyDown(desk.editor, kEscape, 0);
    EXPECT_EQ(desk.records.lines.size(), 2U);
    EXPECT_FALSE(desk.state.lineInProgress);
    EXPECT_EQ(desk.state.editLineIndex, -1);
}

TEST(Escape, AfterAFrameChangeWithTheFirstLineInProgressKeepsTheLines) {
    Desk desk;
    desk.takeTool(0);
    desk.press(50, 50);
    desk.records.lines.assign(3, twoPointLine());
    Form_KeyDown(desk.editor, kEscape, 0);
    EXPECT_EQ(desk.records.lines.size(), 3U);
}

TEST(Escape, AfterAFrameChangeToOneLineResetsIt) {
    Desk desk;
    desk.records.lines.assign(3, twoPointLine());
    desk.takeTool(0);
    desk.press(50, 50);
    desk.records.lines.assign(1, twoPointLine());
    Form_KeyDown(desk.editor, kEscape, 0);
    EXPECT_FALSE(hasLines(desk.records.lines));
}

} // namespace
} // namespace zeltrona::editor
