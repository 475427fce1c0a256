#include "tests/editor/editor_desk.h"

#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;
using document::LineRec;
using ::testing::ElementsAre;

const LineRec kOther{3, 9, false, {{1, 1}, {2, 2}}};

TEST(AddLinePoint, FirstLineFillsTheEmptyElementWhateverNewLineSays) {
    for (const bool newLine : {true, false}) {
        Desk desk;
        desk.state.lineTool = 2;
        desk.state.lineCurved = true;
        addLinePoint(desk.editor, 30, 40.5F, newLine);
        EXPECT_THAT(desk.records.lines, ElementsAre(LineRec{2, 77, true, {{30, 40.5F}}}));
        EXPECT_EQ(desk.state.editLineIndex, 0);
    }
}

TEST(AddLinePoint, NewLineGoesBehindTheOthers) {
    Desk desk;
    desk.records.lines = {kOther, kOther};
    desk.state.lineTool = 1;
    addLinePoint(desk.editor, 30, 40, true);
    EXPECT_THAT(desk.records.lines, ElementsAre(kOther, kOther, LineRec{1, 77, false, {{30, 40}}}));
    EXPECT_EQ(desk.state.editLineIndex, 2);
}

TEST(AddLinePoint, FurtherPointGoesToTheLastLine) {
    Desk desk;
    desk.records.lines = {kOther, kOther};
    desk.state.editLineIndex = 1;
    desk.state.lineTool = 3;
    addLinePoint(desk.editor, 30, 40, false);
    EXPECT_EQ(desk.records.lines[0], kOther);
    EXPECT_EQ(desk.records.lines[1], (LineRec{3, 77, false, {{1, 1}, {2, 2}, {30, 40}}}));
    EXPECT_EQ(desk.state.editLineIndex, 1);
}

TEST(AddLinePoint, LookIsWrittenAnewAtEveryPoint) {
    Desk desk;
    addLinePoint(desk.editor, 1, 2, true);
    desk.session.colorLine = 11;
    desk.state.lineCurved = true;
    desk.state.lineTool = 4;
    addLinePoint(desk.editor, 3, 4, false);
    EXPECT_THAT(desk.records.lines, ElementsAre(LineRec{4, 11, true, {{1, 2}, {3, 4}}}));
}

TEST(AddLinePoint, RedrawsNothing) {
    Desk desk;
    addLinePoint(desk.editor, 1, 2, true);
    EXPECT_TRUE(desk.host.calls.empty());
}

TEST(LineMatchesCurveBox, OnlyWhereBothAgree) {
    for (const bool box : {false, true}) {
        for (const bool curved : {false, true}) {
            Desk desk;
            desk.host.isCurveChecked = box;
            desk.state.lineCurved = curved;
            EXPECT_EQ(lineMatchesCurveBox(desk.editor), box == curved);
        }
    }
}

TEST(FinishLine, KeepsALineOfTwoPoints) {
    Desk desk;
    desk.takeTool(0);
    desk.press(10, 10);
    desk.press(60, 60);
    desk.host.calls.clear();
    finishLine(desk.editor);
    ASSERT_EQ(desk.records.lines.size(), 1U);
    EXPECT_EQ(desk.records.lines[0].pts.size(), 2U);
    EXPECT_FALSE(desk.state.lineInProgress);
    EXPECT_EQ(desk.state.editLineIndex, -1);
    EXPECT_FALSE(desk.state.lineCurved);
    EXPECT_THAT(desk.host.calls, ElementsAre("redraw 0 0"));
}

TEST(FinishLine, ResetsTheOnlyLineOfOnePoint) {
    Desk desk;
    desk.takeTool(3);
    desk.press(10, 10);
    finishLine(desk.editor);
    EXPECT_THAT(desk.records.lines, ElementsAre(document::emptyLine()));
}

TEST(FinishLine, CutsALineOfOnePointBehindOthers) {
    Desk desk;
    desk.records.lines = {kOther, kOther};
    desk.takeTool(3);
    desk.press(10, 10);
    ASSERT_EQ(desk.records.lines.size(), 3U);
    finishLine(desk.editor);
    EXPECT_THAT(desk.records.lines, ElementsAre(kOther, kOther));
}

TEST(FinishLine, PassesALineOverThatTheFrameNoLongerHas) {
    Desk desk;
    desk.state.lineInProgress = true;
    desk.state.lineCurved = true;
    desk.state.editLineIndex = 7;
    desk.records.lines = {kOther};
    finishLine(desk.editor);
    EXPECT_THAT(desk.records.lines, ElementsAre(kOther));
    EXPECT_FALSE(desk.state.lineInProgress);
    EXPECT_FALSE(desk.state.lineCurved);
    EXPECT_EQ(desk.state.editLineIndex, -1);
}

TEST(LineAcrossAFrameChange, GoesOnAtTheLastLineOfTheNewFrame) {
    Desk desk;
    desk.takeTool(0);
    desk.press(10, 10);
    desk.records.lines = {kOther, kOther, kOther};
    desk.press(50, 50);
    EXPECT_EQ(desk.records.lines[0], kOther);
    EXPECT_EQ(desk.records.lines[2].pts.size(), 3U);
}

TEST(LineAcrossAFrameChange, BeginsAnewInAFrameWithoutLines) {
    Desk desk;
    desk.records.lines = {kOther};
    desk.takeTool(0);
    desk.press(10, 10);
    document::resetLines(desk.records.lines);
    desk.press(50, 50);
    EXPECT_THAT(desk.records.lines, ElementsAre(LineRec{0, 77, false, {{50, 50}}}));
    EXPECT_EQ(desk.state.editLineIndex, 0);
}

TEST(LineAcrossAFrameChange, LineWithoutPointsTakesThePoint) {
    Desk desk;
    desk.takeTool(0);
    desk.press(10, 10);
    desk.records.lines = {kOther, LineRec{}};
    desk.press(50, 50);
    EXPECT_EQ(desk.records.lines[1].pts.size(), 1U);
}

TEST(LineDrawing, SixteenBitsOfLinesAreTheMost) {
    Desk desk;
    desk.records.lines.assign(32768, kOther);
    desk.takeTool(0);
    desk.press(10, 10);
    EXPECT_EQ(desk.records.lines.size(), 32768U);
    EXPECT_EQ(desk.records.lines.back(), kOther);
}

} // namespace
} // namespace zeltrona::editor
