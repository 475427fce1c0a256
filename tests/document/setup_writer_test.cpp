#include "document/frame_store.h"
#include "document/setup_writer.h"
#include "tests/document/temporary_play.h"

#include <gtest/gtest.h>

namespace zeltrona::document {

namespace {

using tests::TemporaryPlay;

constexpr const char* kCommonKeys = "[Config]\ncolorOff=16711680\ncolorDef=255\ncolorOffFont=16777215\n"
                                    "colorDefFont=16777215\ncolorLine=0\nline=1\nfont=Arial,238,\n";

TEST(TeamConfig, WritesItsKeysInTheirOrder) {
    TemporaryPlay play;
    TeamSetup setup;
    setup.off[0] = {true, "4", 5};
    setup.off[1] = {true, "7", 6};
    setup.def[0] = {true, "A", 7};
    EXPECT_TRUE(writeTeamConfig(play.file, setup).ok());
    EXPECT_TRUE(play.holds(std::string(kCommonKeys)
                           + "txtOff0=4\nskinOff0=5\ntxtOff1=7\nskinOff1=6\ntxtDef0=A\nskinDef0=7\n"
                             "[Frame1]\nframe=1\n"
                             "off0=10,10\nangleOff0=90\nbodyOff0=0\noff1=40,10\nangleOff1=90\nbodyOff1=0\n"
                             "def0=10,40\nangleDef0=90\nbodyDef0=0\n"));
}

TEST(TeamConfig, BodiesHaveTheirKeyAndBeginAtZero) {
    TemporaryPlay play;
    TeamSetup setup;
    setup.colorOff = 1;
    setup.colorDef = 2;
    setup.colorOffFont = 3;
    setup.colorDefFont = 4;
    setup.colorLine = 5;
    setup.lineWidth = 3;
    setup.bodies = true;
    setup.def[11] = {true, "12", 10079487};
    EXPECT_TRUE(writeTeamConfig(play.file, setup).ok());
    EXPECT_TRUE(
        play.holds("[Config]\ncolorOff=1\ncolorDef=2\ncolorOffFont=3\ncolorDefFont=4\ncolorLine=5\nline=3\n"
                   "font=Arial,238,\nbodyType=1\ntxtDef0=12\nskinDef0=10079487\n"
                   "[Frame1]\nframe=1\ndef0=0,40\nangleDef0=90\nbodyDef0=0\n"));
}

TEST(TeamConfig, ChosenPlayersArePackedIntoTheFirstSlots) {
    TemporaryPlay play;
    TeamSetup setup;
    setup.off[3] = {true, "4", 0};
    setup.off[11] = {true, "12", 0};
    writeTeamConfig(play.file, setup);
    EXPECT_EQ(play.file.readWhole("Config", "txtOff0"), "4");
    EXPECT_EQ(play.file.readWhole("Config", "txtOff1"), "12");
    EXPECT_EQ(play.file.readWhole("Frame1", "off1"), "40,10");
    EXPECT_FALSE(play.file.hasKey("Frame1", "off2"));
    EXPECT_FALSE(play.file.hasKey("Frame1", "def0"));
}

TEST(TeamConfig, SlotsOfAnEarlierTeamAreDeleted) {
    TemporaryPlay play(
        "[Config]\ntxtOff0=x\nskinOff0=1\ntxtOff11=y\nskinDef5=9\ntxtDef5=z\n"
        "[Frame1]\noff11=1,2\nangleoff11=5\nbodyoff11=1\ndef5=1,2\nangledef5=5\nbodydef5=1\nkeep=1\n");
    TeamSetup setup;
    setup.off[0] = {true, "4", 0};
    writeTeamConfig(play.file, setup);
    EXPECT_TRUE(play.holds(
        std::string(kCommonKeys)
        + "txtOff0=4\nskinOff0=0\n[Frame1]\nkeep=1\nframe=1\noff0=10,10\nangleOff0=90\nbodyOff0=0\n"));
}

TEST(TeamConfig, AnEmptyLabelIsWrittenAndItsPlayerDisappearsAtLoad) {
    TemporaryPlay play;
    TeamSetup setup;
    setup.off[0] = {true, "", 0};
    setup.off[1] = {true, "7", 0};
    writeTeamConfig(play.file, setup);
    EXPECT_TRUE(play.file.hasKey("Config", "txtOff0"));
    Session session;
    FrameRecords records;
    loadConfig(play.file, session, records);
    ASSERT_EQ(records.offPlayers.size(), 1U);
    EXPECT_EQ(records.offPlayers[0].txt, "7");
}

TEST(TeamConfig, ALabelInQuotationMarksReadsBackAsTyped) {
    TemporaryPlay play;
    TeamSetup setup;
    setup.off[0] = {true, "\"4\"", 0};
    writeTeamConfig(play.file, setup);
    Session session;
    FrameRecords records;
    loadConfig(play.file, session, records);
    EXPECT_EQ(records.offPlayers[0].txt, "\"4\"");
}

TEST(TeamConfig, IsOneReplacement) {
    TemporaryPlay play;
    int replacements = 0;
    play.file.setWriteObserver([&](const WriteResult&) { ++replacements; });
    TeamSetup setup;
    setup.off[0] = {true, "4", 0};
    writeTeamConfig(play.file, setup);
    EXPECT_EQ(replacements, 1);
}

TEST(CourtConfig, OfAnUntouchedWindow) {
    TemporaryPlay play;
    EXPECT_TRUE(writeCourtConfig(play.file, {}).ok());
    EXPECT_TRUE(play.holds("[Config]\ncourt=1\ncourtColor=16777215\ncourtTexture=1\nuseTexture=0\n"
                           "txtTitle=\ntxtHead=\n"));
}

TEST(CourtConfig, KeepsATitleThatHasBeenStored) {
    TemporaryPlay play("[Config]\ntxtTitle=Horns\ntxtHead=One\n");
    int replacements = 0;
    play.file.setWriteObserver([&](const WriteResult&) { ++replacements; });
    EXPECT_TRUE(writeCourtConfig(play.file, {9, 255, false, true, true}).ok());
    EXPECT_TRUE(play.holds("[Config]\ntxtTitle=Horns\ntxtHead=One\ncourt=9\ncourtColor=255\ncourtTexture=0\n"
                           "useTexture=1\n"));
    EXPECT_EQ(replacements, 1);
}

} // namespace

} // namespace zeltrona::document
