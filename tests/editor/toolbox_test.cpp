#include "tests/editor/editor_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TextAnswer someText() {
    TextAnswer answer;
    answer.text = "zone";
    answer.fontName = "Courier";
    answer.fontSize = 12;
    answer.color = 0x0000FF;
    answer.bold = true;
    answer.strikethrough = true;
    answer.charset = 204;
    return answer;
}

TEST(ToolImageOffset, StepsByFortyAndTwentyMoreWhenDown) {
    EXPECT_EQ(toolImageOffset(1, 0), 0);
    EXPECT_EQ(toolImageOffset(1, 1), 20);
    EXPECT_EQ(toolImageOffset(2, 0), 40);
    EXPECT_EQ(toolImageOffset(11, 0), 400);
    EXPECT_EQ(toolImageOffset(11, 1), 420);
}

TEST(EditorState, StartsAsAtLoad) {
    const EditorState state;
    EXPECT_EQ(state.currTool, -1);
    EXPECT_FALSE(state.lineInProgress);
    EXPECT_FALSE(state.lineCurved);
    EXPECT_EQ(state.lineTool, 0);
    EXPECT_EQ(state.editLineIndex, -1);
    EXPECT_EQ(state.pickedOff, -1);
    EXPECT_EQ(state.pickedDef, -1);
    EXPECT_EQ(state.pickedBall, -1);
    EXPECT_EQ(state.groupOff, 0);
    EXPECT_EQ(state.groupDef, 0);
    EXPECT_EQ(state.rotatePick, -1);
    EXPECT_EQ(state.grabDX, 0);
    EXPECT_EQ(state.ballOriginY, 0);
    EXPECT_FALSE(state.shadowSizing);
    EXPECT_EQ(state.toolDown.size(), 11U);
}

const StepCase kClicks[] = {
    {"LineButtonGoesDownAndShowsItsHint",
     [](Desk&) {},
     [](Desk& d) { d.click(3); },
     [](Desk& d) { d.takeTool(3); },
     {"button 3 down", "status [23]"}},
    {"LineButtonShowsTheCurvedHintWhileTheBoxIsChecked",
     [](Desk& d) { d.host.isCurveChecked = true; },
     [](Desk& d) { d.click(0); },
     [](Desk& d) { d.takeTool(0); },
     {"button 0 down", "status [24]"}},
    {"SecondClickPutsTheButtonUpWithoutAHint",
     [](Desk& d) { d.takeTool(2); },
     [](Desk& d) { d.click(2); },
     [](Desk& d) {
         d.state.toolDown.fill(false);
         d.state.currTool = -1;
     },
     {"button 2 up"}},
    {"NewToolPutsTheFormerUpFirst",
     [](Desk& d) { d.takeTool(4); },
     [](Desk& d) { d.click(9); },
     [](Desk& d) { d.takeTool(9); },
     {"button 4 up", "button 9 down", "status [29]"}},
    {"BallIsParkedBehindTheOthers",
     [](Desk&) {},
     [](Desk& d) { d.click(5); },
     [](Desk& d) {
         d.takeTool(5);
         d.records.balls.push_back({10, 10});
     },
     {"button 5 down", "status [25]"}},
    {"FirstBallFillsTheEmptyElement",
     [](Desk& d) { document::resetBalls(d.records.balls); },
     [](Desk& d) { d.click(5); },
     [](Desk& d) {
         d.takeTool(5);
         d.records.balls = {{10, 10}};
     },
     {"button 5 down", "status [25]"}},
    {"FirstTriangleFillsTheEmptyElementInTheLineColor",
     [](Desk&) {},
     [](Desk& d) { d.click(6); },
     [](Desk& d) {
         d.takeTool(6);
         d.records.triangles = {{10, 10, 77}};
     },
     {"button 6 down", "status [26]"}},
    {"TriangleIsParkedBehindTheOthers",
     [](Desk& d) {
         d.records.triangles = {{50, 60, 5}};
     },
     [](Desk& d) { d.click(6); },
     [](Desk& d) {
         d.takeTool(6);
         d.records.triangles.push_back({10, 10, 77});
     },
     {"button 6 down", "status [26]"}},
    {"TextIsParkedBelowItsHeightAndItsFontKept",
     [](Desk& d) { d.host.texts = {someText()}; },
     [](Desk& d) { d.click(7); },
     [](Desk& d) {
         d.takeTool(7);
         d.records.txtPics = {{"zone", 10, 24, "Courier", 12, 0x0000FF, true, false, false, true}};
         d.session.fontCharset = 204;
     },
     {"button 7 down", "text", "font Courier 204", "status [27]"}},
    {"GivenUpTextPutsTheButtonUp",
     [](Desk& d) { d.host.texts = {std::nullopt}; },
     [](Desk& d) { d.click(7); },
     [](Desk&) {},
     {"button 7 down", "text", "button 7 up"}},
    {"EmptyTextPutsTheButtonUp",
     [](Desk& d) { d.host.texts = {TextAnswer{}}; },
     [](Desk& d) { d.click(7); },
     [](Desk&) {},
     {"button 7 down", "text", "button 7 up"}},
    {"ShadowGetsItsColorAndAFirstSize",
     [](Desk& d) { d.host.colors = {0x00FF00}; },
     [](Desk& d) { d.click(8); },
     [](Desk& d) {
         d.takeTool(8);
         d.records.shadows = {{1, 1, 10, 10, 0x00FF00}};
     },
     {"button 8 down", "color or nothing", "status [28]"}},
    {"ShadowGrowsTheArrayWithData",
     [](Desk& d) {
         d.records.shadows = {{5, 6, 70, 80, 9}};
         d.host.colors = {3};
     },
     [](Desk& d) { d.click(8); },
     [](Desk& d) {
         d.takeTool(8);
         d.records.shadows.push_back({1, 1, 10, 10, 3});
     },
     {"button 8 down", "color or nothing", "status [28]"}},
    {"GivenUpShadowPutsTheButtonUpAndStaysBlank",
     [](Desk& d) {
         d.records.shadows = {{5, 6, 70, 80, 9}};
         d.host.colors = {std::nullopt};
     },
     [](Desk& d) { d.click(8); },
     [](Desk& d) { d.records.shadows.push_back({}); },
     {"button 8 down", "color or nothing", "button 8 up"}},
    {"DeleteOnlyBecomesTheTool",
     [](Desk&) {},
     [](Desk& d) { d.click(9); },
     [](Desk& d) { d.takeTool(9); },
     {"button 9 down", "status [29]"}},
    {"ColorSetsTheLineColor",
     [](Desk& d) { d.host.colors = {0x123456}; },
     [](Desk& d) { d.click(10); },
     [](Desk& d) {
         d.takeTool(10);
         d.session.colorLine = 0x123456;
     },
     {"button 10 down", "color", "status [30]"}},
    {"CancelledColorTakesWhatTheDialogHeld",
     [](Desk& d) {
         d.host.heldColor = 0xABCDEF;
         d.host.colors = {std::nullopt};
     },
     [](Desk& d) { d.click(10); },
     [](Desk& d) {
         d.takeTool(10);
         d.session.colorLine = 0xABCDEF;
     },
     {"button 10 down", "color", "status [30]"}},
    {"ColorGoingUpAsksAsWell",
     [](Desk& d) {
         d.takeTool(10);
         d.host.colors = {8};
     },
     [](Desk& d) { d.click(10); },
     [](Desk& d) {
         d.state.toolDown.fill(false);
         d.state.currTool = -1;
         d.session.colorLine = 8;
     },
     {"button 10 up", "color"}},
};

class ToolboxClick : public ::testing::TestWithParam<StepCase> {};

TEST_P(ToolboxClick, DoesWhatItSays) {
    checkStep(GetParam());
}

INSTANTIATE_TEST_SUITE_P(, ToolboxClick, ::testing::ValuesIn(kClicks),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Toolbox, EachHintBelongsToItsButton) {
    for (std::int16_t i = 5; i <= 10; ++i) {
        Desk desk;
        desk.host.texts = {someText()};
        desk.host.colors = {1};
        desk.click(i);
        EXPECT_THAT(desk.callsOf("status"), ElementsAre("status [" + std::to_string(i + 20) + "]"));
    }
}

TEST(Toolbox, LeavingTheBallForTheTriangleLeavesBothParked) {
    Desk desk;
    document::resetBalls(desk.records.balls);
    desk.click(tool::kBall);
    desk.click(tool::kTriangle);
    EXPECT_THAT(desk.records.balls, ElementsAre(document::BallRec{10, 10}));
    EXPECT_THAT(desk.records.triangles, ElementsAre(document::TriangleRec{10, 10, 77}));
    EXPECT_EQ(desk.state.currTool, tool::kTriangle);
    EXPECT_FALSE(desk.state.toolDown[tool::kBall]);
}

TEST(Toolbox, TakingTheBallToolTwiceParksASecondBall) {
    Desk desk;
    document::resetBalls(desk.records.balls);
    desk.click(tool::kBall);
    desk.click(tool::kBall);
    desk.click(tool::kBall);
    EXPECT_EQ(desk.records.balls.size(), 2U);
}

TEST(Toolbox, ShadowIsThereBeforeItsColorIsAsked) {
    Desk desk;
    desk.records.shadows = {{5, 6, 70, 80, 9}};
    std::size_t whileAsking = 0;
    desk.host.whileOpen = [&] { whileAsking = desk.records.shadows.size(); };
    desk.click(tool::kShadow);
    EXPECT_EQ(whileAsking, 2U);
}

TEST(Toolbox, GivenUpShadowOfAnEmptyFrameCountsAsNone) {
    Desk desk;
    desk.click(tool::kShadow);
    EXPECT_THAT(desk.records.shadows, ElementsAre(document::ShadowRec{}));
    EXPECT_FALSE(hasShadows(desk.records.shadows));
    EXPECT_EQ(desk.state.currTool, -1);
    EXPECT_FALSE(desk.state.toolDown[tool::kShadow]);
}

TEST(Toolbox, ColorOfTheShadowStaysInTheDialogForTheColorTool) {
    Desk desk;
    desk.host.colors = {0x445566, std::nullopt};
    desk.click(tool::kShadow);
    desk.click(tool::kColor);
    EXPECT_EQ(desk.session.colorLine, 0x445566);
}

TEST(Toolbox, FrameChangedUnderTheColorDialogGivesTheShadowUp) {
    Desk desk;
    desk.records.shadows = {{5, 6, 70, 80, 9}, {6, 6, 7, 7, 9}};
    desk.host.colors = {1};
    desk.host.whileOpen = [&] { document::resetShadows(desk.records.shadows); };
    desk.click(tool::kShadow);
    EXPECT_THAT(desk.records.shadows, ElementsAre(document::ShadowRec{}));
    EXPECT_EQ(desk.state.currTool, -1);
}

TEST(Toolbox, FrameChangedUnderTheTextDialogGetsTheText) {
    Desk desk;
    desk.records.txtPics.resize(3);
    desk.host.texts = {someText()};
    desk.host.whileOpen = [&] { document::resetTxtPics(desk.records.txtPics); };
    desk.click(tool::kText);
    ASSERT_EQ(desk.records.txtPics.size(), 1U);
    EXPECT_EQ(desk.records.txtPics[0].text, "zone");
}

TEST(Toolbox, TextWithoutAFontNameIsArialInTheKeyToo) {
    Desk desk;
    TextAnswer answer = someText();
    answer.fontName.clear();
    desk.host.texts = {answer};
    desk.click(tool::kText);
    EXPECT_EQ(desk.records.txtPics[0].fontName, "Arial");
    EXPECT_THAT(desk.callsOf("font"), ElementsAre("font Arial 204"));
}

TEST(Toolbox, LaterFontLeavesAnEarlierTextAlone) {
    Desk desk;
    TextAnswer second = someText();
    second.fontName = "Times";
    desk.host.texts = {someText(), second};
    desk.click(tool::kText);
    desk.press(100, 200);
    desk.click(tool::kText);
    EXPECT_EQ(desk.records.txtPics[0].fontName, "Courier");
    EXPECT_EQ(desk.records.txtPics[1].fontName, "Times");
}

TEST(Toolbox, FontStylesGoToTheTextOneToOne) {
    Desk desk;
    TextAnswer answer = someText();
    answer.bold = false;
    answer.italic = true;
    answer.underline = true;
    answer.strikethrough = false;
    desk.host.texts = {answer};
    desk.click(tool::kText);
    const auto& picture = desk.records.txtPics[0];
    EXPECT_FALSE(picture.bold);
    EXPECT_TRUE(picture.italic);
    EXPECT_TRUE(picture.underline);
    EXPECT_FALSE(picture.strikethrough);
}

TEST(Toolbox, NewObjectIsPassedOverWhereItsIndexWouldLeaveSixteenBits) {
    Desk desk;
    desk.records.balls.assign(32768, {1, 1});
    desk.click(tool::kBall);
    EXPECT_EQ(desk.records.balls.size(), 32768U);
    EXPECT_EQ(desk.records.balls.back(), (document::BallRec{1, 1}));
}

TEST(CurveShowHide, FlipsBetweenShownAndHiddenAndRedraws) {
    Desk desk;
    cmdCurveShowHide_Click(desk.editor);
    EXPECT_EQ(desk.session.showCurves, -1);
    cmdCurveShowHide_Click(desk.editor);
    EXPECT_EQ(desk.session.showCurves, 0);
    EXPECT_THAT(desk.host.calls, ElementsAre("redraw 0 0", "redraw 0 0"));
}

TEST(Toolbox, NoToolTouchesTheTimerOrTheBoard) {
    Desk desk;
    desk.host.texts = {someText()};
    desk.host.colors = {1, 2};
    for (std::int16_t i = 0; i < tool::kCount; ++i) {
        desk.click(i);
    }
    EXPECT_THAT(desk.callsOf("timer"), IsEmpty());
    EXPECT_THAT(desk.callsOf("redraw"), IsEmpty());
}

} // namespace
} // namespace zeltrona::editor
