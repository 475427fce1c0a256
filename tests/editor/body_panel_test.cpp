#include "tests/editor/editor_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

Desk& withPanel(Desk& desk, const char* side, const char* index) {
    desk.state.bodyToolSide = side;
    desk.state.bodyToolIndex = index;
    return desk;
}

TEST(BodyPanel, ItemsGiveThePosesZeroToThree) {
    for (std::int16_t item = 1; item <= 4; ++item) {
        Desk desk;
        pBodyTool_Click(withPanel(desk, "off", "0").editor, item);
        EXPECT_EQ(desk.records.offPlayers[0].body, item - 1);
        EXPECT_THAT(desk.host.calls, ElementsAre("redraw 0 0", "close panel"));
        EXPECT_EQ(desk.state.bodyToolSide, "");
        EXPECT_EQ(desk.state.bodyToolIndex, "");
    }
}

TEST(BodyPanel, ThereIsNoFifthPose) {
    Desk desk;
    pBodyTool_Click(withPanel(desk, "off", "0").editor, 5);
    EXPECT_EQ(desk.records.offPlayers[0].body, 0);
    EXPECT_THAT(desk.host.calls, IsEmpty());
}

TEST(BodyPanel, DefenceTagChangesADefender) {
    Desk desk;
    desk.records.defPlayers.push_back(playerAt(1, 2));
    pBodyTool_Click(withPanel(desk, "def", "1").editor, 3);
    EXPECT_EQ(desk.records.defPlayers[1].body, 2);
    EXPECT_EQ(desk.records.defPlayers[0].body, 0);
    EXPECT_EQ(desk.records.offPlayers[0].body, 0);
}

TEST(BodyPanel, ThePanelItselfDoesNothing) {
    Desk desk;
    pBodyTool_Click(withPanel(desk, "off", "0").editor, 0);
    EXPECT_THAT(desk.host.calls, IsEmpty());
    EXPECT_EQ(desk.state.bodyToolSide, "off");
    EXPECT_EQ(desk.state.bodyToolIndex, "0");
}

TEST(BodyPanel, IndexOutsideZeroToElevenChangesNobodyButRedraws) {
    for (const char* index : {"-1", "12", "400", ""}) {
        Desk desk;
        desk.records.offPlayers.assign(13, playerAt(1, 1));
        const auto before = desk.records;
        pBodyTool_Click(withPanel(desk, "off", index).editor, 2);
        EXPECT_EQ(desk.records, before) << index;
        EXPECT_THAT(desk.host.calls, ElementsAre("redraw 0 0", "close panel")) << index;
    }
}

TEST(BodyPanel, LastIndexCounts) {
    Desk desk;
    desk.records.offPlayers.assign(12, playerAt(1, 1));
    pBodyTool_Click(withPanel(desk, "off", "11").editor, 2);
    EXPECT_EQ(desk.records.offPlayers[11].body, 1);
}

TEST(BodyPanel, PlayerGoneSinceTheFrameChangedIsPassedOver) {
    Desk desk;
    const auto before = desk.records;
    pBodyTool_Click(withPanel(desk, "def", "7").editor, 2);
    EXPECT_EQ(desk.records, before);
    EXPECT_THAT(desk.host.calls, ElementsAre("redraw 0 0", "close panel"));
}

TEST(BodyPanel, UnknownSideClosesWithoutARedraw) {
    Desk desk;
    pBodyTool_Click(withPanel(desk, "", "0").editor, 2);
    EXPECT_THAT(desk.host.calls, ElementsAre("close panel"));
    EXPECT_EQ(desk.records.offPlayers[0].body, 0);
}

TEST(BodyPanel, RightPressOnABodyOpensItAndTheItemReachesThatPlayer) {
    Desk desk;
    desk.session.bodyType = 1;
    desk.records.defPlayers.push_back(playerAt(50, 200));
    desk.press(75, 225, kRight);
    desk.release();
    EXPECT_THAT(desk.callsOf("panel"), ElementsAre("panel 75 225"));
    EXPECT_EQ(desk.state.bodyToolSide, "def");
    EXPECT_EQ(desk.state.bodyToolIndex, "1");
    pBodyTool_Click(desk.editor, 4);
    EXPECT_EQ(desk.records.defPlayers[1].body, 3);
}

} // namespace
} // namespace zeltrona::editor
