#include "document/frame_store.h"
#include "tests/document/temporary_play.h"

#include <gtest/gtest.h>

namespace zeltrona::document {

namespace {

using tests::TemporaryPlay;

FrameRecords fullFrame() {
    FrameRecords records;
    records.offPlayers = {{120, 88, "4", 2, 135, 0}, {40, 200, "7", 0, 90, 0}};
    records.defPlayers = {{300, 96, "A", 1, 90, 0}};
    records.balls = {{128, 92.5F}, {1, 2}};
    records.offPaths = {{1, {{40, 200}, {55.5F, 196}, {71, 188.25F}}}};
    records.defPaths = {{0, {{300, 96}}}};
    records.ballPaths = {{0, {{128, 92.5F}, {140, 100}}}};
    records.triangles = {{60, 70, 255}};
    records.lines = {{4, 0, false, {{120, 88}, {200, 140}}}, {5, 255, true, {{40, 200}, {80, 210}}}};
    records.shadows = {{90, 60, 70, 30, 12632256}};
    records.txtPics = {{"Screen", 200, 30, "Arial", 10, 0, true, false, false, true}};
    return records;
}

constexpr const char* kFullFrame = "[Config]\n"
                                   "Notes2=\n"
                                   "[Frame2]\n"
                                   "frame=2\n"
                                   "off0=120,88\n"
                                   "angleoff0=135\n"
                                   "bodyoff0=2\n"
                                   "off1=40,200\n"
                                   "angleoff1=90\n"
                                   "bodyoff1=0\n"
                                   "def0=300,96\n"
                                   "angledef0=90\n"
                                   "bodydef0=1\n"
                                   "Ball0=128,92.5,\n"
                                   "Ball1=1,2,\n"
                                   "off1curve=40,200,55.5,196,71,188.25,\n"
                                   "def0curve=300,96,\n"
                                   "Ball0curve=128,92.5,140,100,\n"
                                   "Triangle0=255,60,70,\n";

constexpr const char* kNotPartial = "Line0=4,0,0,120,88,200,140,\n"
                                    "Line1=5,1,255,40,200,80,210,\n"
                                    "Shadow0=12632256,90,60,70,30,\n"
                                    "txtPic0=Screen,200,30,Arial,10,0,1,0,0,1,\n";

Session atFrame(std::int16_t frame) {
    Session session;
    session.currFrame = frame;
    return session;
}

TEST(SaveFrame, WritesAllKeysInTheirOrder) {
    TemporaryPlay play;
    EXPECT_TRUE(saveFrame(play.file, atFrame(2), fullFrame(), 2, false).ok());
    EXPECT_TRUE(play.holds(std::string(kFullFrame) + kNotPartial));
}

TEST(SaveFrame, PartialLeavesOutLinesShadowsAndTexts) {
    TemporaryPlay play;
    EXPECT_TRUE(saveFrame(play.file, atFrame(2), fullFrame(), 2, true).ok());
    EXPECT_TRUE(play.holds(kFullFrame));
}

TEST(SaveFrame, PartialLeavesOldLinesInTheFile) {
    TemporaryPlay play("[Config]\nNotes1=\n[Frame1]\nframe=1\nLine0=1,0,0,1,2,\n");
    FrameRecords records;
    records.lines = {{4, 0, false, {{9, 9}}}};
    saveFrame(play.file, atFrame(1), records, 1, true);
    EXPECT_TRUE(play.holds("[Config]\nNotes1=\n[Frame1]\nframe=1\nLine0=1,0,0,1,2,\n"));
}

TEST(SaveFrame, WritesTheShownFrameWhateverItsArgument) {
    TemporaryPlay play;
    saveFrame(play.file, atFrame(3), FrameRecords(), 1, false);
    EXPECT_TRUE(play.holds("[Config]\nNotes3=\n[Frame3]\nframe=3\n"));
}

TEST(SaveFrame, KeepsANoteAsItStands) {
    const std::string longNote(600, 'n');
    const std::string lines = "[Config]\nnotes1=\"" + longNote + "\"\n[Frame1]\nframe=1\n";
    TemporaryPlay play(lines);
    saveFrame(play.file, atFrame(1), FrameRecords(), 1, false);
    EXPECT_TRUE(play.holds(lines));
}

TEST(SaveFrame, OfAnEmptyFrameWritesNoKeysOfObjects) {
    TemporaryPlay play;
    saveFrame(play.file, atFrame(1), FrameRecords(), 1, false);
    EXPECT_TRUE(play.holds("[Config]\nNotes1=\n[Frame1]\nframe=1\n"));
}

TEST(SaveFrame, ObjectsThatEqualTheEmptyStateAreNotStored) {
    TemporaryPlay play;
    FrameRecords records;
    records.offPlayers = {{0, 1000, "0", 3, 90, 5}};
    records.balls = {{0, 0}};
    records.offPaths = {{0, {{0, 0}, {5, 5}}}, {1, {{7, 7}}}};
    records.txtPics = {{"Text", 0, 0, "", 8, 255, false, false, false, false}};
    saveFrame(play.file, atFrame(1), records, 1, false);
    EXPECT_TRUE(play.holds("[Config]\nNotes1=\n[Frame1]\nframe=1\n"));
}

TEST(SaveFrame, KeysOfObjectsThatAreGoneStay) {
    TemporaryPlay play;
    saveFrame(play.file, atFrame(2), fullFrame(), 2, false);
    saveFrame(play.file, atFrame(2), FrameRecords(), 2, false);
    EXPECT_TRUE(play.holds(std::string(kFullFrame) + kNotPartial));
}

TEST(SaveFrame, RoundsPlayersToWholeNumbersHalfToEven) {
    TemporaryPlay play;
    FrameRecords records;
    records.offPlayers = {{10.5F, 11.5F, "4", 0, 0, 0}, {-10.5F, 12.51F, "5", 0, -15, 0}};
    saveFrame(play.file, atFrame(1), records, 1, false);
    EXPECT_TRUE(play.holds("[Config]\nNotes1=\n[Frame1]\nframe=1\noff0=10,12\nangleoff0=0\nbodyoff0=0\n"
                           "off1=-10,13\nangleoff1=-15\nbodyoff1=0\n"));
}

TEST(SaveFrame, PlacesBeyondSixteenBitsWrap) {
    TemporaryPlay play;
    FrameRecords records;
    records.offPlayers = {{32768, -32769, "4", 0, 0, 0}};
    saveFrame(play.file, atFrame(1), records, 1, false);
    EXPECT_EQ(play.file.readWhole("Frame1", "off0"), "-32768,32767");
}

TEST(SaveFrame, UpdatesAKeyOfAnotherSpellingInItsPlace) {
    TemporaryPlay play("[config]\nNOTES1=x\n[FRAME1]\nFrame=1\nangleOff0=45\nOFF0=1,2\n; mine\n");
    FrameRecords records;
    records.offPlayers = {{3, 4, "4", 1, 90, 0}};
    saveFrame(play.file, atFrame(1), records, 1, false);
    EXPECT_TRUE(
        play.holds("[config]\nNOTES1=x\n[FRAME1]\nFrame=1\nangleOff0=90\nOFF0=3,4\nbodyoff0=1\n; mine\n"));
}

TEST(SaveFrame, EqualsSingleWritesInTheirOrder) {
    TemporaryPlay play("[Config]\ncourt=1\n[Frame1]\nframe=1\n");
    TemporaryPlay single("[Config]\ncourt=1\n[Frame1]\nframe=1\n");
    FrameRecords records;
    records.balls = {{1, 2}};
    records.txtPics = {{"a", 1, 2, "Arial", 10, 3, false, true, false, false}};
    saveFrame(play.file, atFrame(2), records, 2, false);
    single.file.writeString("Config", "Notes2", "");
    single.file.writeString("Frame2", "frame", "2");
    single.file.writeString("Frame2", "Ball0", "1,2,");
    single.file.writeString("Frame2", "txtPic0", "a,1,2,Arial,10,3,0,1,0,0,");
    EXPECT_EQ(play.folder.get(), single.folder.get());
}

TEST(SaveFrame, IsOneReplacement) {
    TemporaryPlay play;
    int replacements = 0;
    play.file.setWriteObserver([&](const WriteResult& result) { replacements += result.ok() ? 1 : 0; });
    saveFrame(play.file, atFrame(2), fullFrame(), 2, false);
    EXPECT_EQ(replacements, 1);
}

TEST(SaveFrame, TellsWhyItFailed) {
    PlayFile play("/proc/no-such-folder/play.zpf");
    EXPECT_FALSE(saveFrame(play, atFrame(1), FrameRecords(), 1, false).ok());
}

TEST(SaveFrame, WritesALineWithoutPointsBackWithItsFields) {
    TemporaryPlay play("[Frame1]\nframe=1\nLine0=4,1,255,\n");
    Session session = atFrame(1);
    FrameRecords records;
    loadFrame(play.file, session, records, 1);
    saveFrame(play.file, session, records, 1, false);
    EXPECT_EQ(play.file.readWhole("Frame1", "Line0"), "4,1,255,");
}

TEST(LoadFrame, ReadsEveryArray) {
    TemporaryPlay play;
    saveFrame(play.file, atFrame(2), fullFrame(), 2, false);
    play.file.writeString("Config", "txtOff0", "4");
    play.file.writeString("Config", "txtOff1", "7");
    play.file.writeString("Config", "txtDef0", "A");
    Session session = atFrame(1);
    FrameRecords records;
    loadFrame(play.file, session, records, 2);
    EXPECT_EQ(records, fullFrame());
    EXPECT_EQ(session.currFrame, 1);
}

TEST(LoadFrame, EmptiesAllButThePlayersWhenTheFrameHasNothing) {
    const TemporaryPlay play("[Frame3]\nframe=3\n");
    Session session;
    FrameRecords records = fullFrame();
    loadFrame(play.file, session, records, 3);
    FrameRecords expected;
    expected.offPlayers = fullFrame().offPlayers;
    expected.defPlayers = fullFrame().defPlayers;
    EXPECT_EQ(records, expected);
}

TEST(LoadFrame, KeepsTheOtherSideOfAFrameWithOneSideOnly) {
    const TemporaryPlay play("[Config]\ntxtDef0=B\n[Frame3]\nframe=3\ndef0=5,6\n");
    Session session;
    FrameRecords records = fullFrame();
    loadFrame(play.file, session, records, 3);
    EXPECT_EQ(records.offPlayers, fullFrame().offPlayers);
    ASSERT_EQ(records.defPlayers.size(), 1U);
    EXPECT_EQ(records.defPlayers[0], (PlayerRec{5, 6, "B", 0, 0, 0}));
}

TEST(LoadFrame, AMissingLabelHidesThePlayerInEveryFrame) {
    const TemporaryPlay play(
        "[Config]\ntxtOff1=7\n[Frame1]\noff0=1,2\noff1=3,4\n[Frame2]\noff0=5,6\noff1=7,8\n");
    Session session;
    FrameRecords records;
    for (const std::int16_t frame : {std::int16_t{1}, std::int16_t{2}}) {
        loadFrame(play.file, session, records, frame);
        ASSERT_EQ(records.offPlayers.size(), 1U);
        EXPECT_EQ(records.offPlayers[0].txt, "7");
    }
}

TEST(LoadFrame, AHoleInTheSlotsClosesUpAndComesBackAfterASave) {
    TemporaryPlay play("[Config]\ntxtOff0=4\ntxtOff1=7\ntxtOff2=9\n[Frame1]\nframe=1\noff0=1,2\noff2=5,6\n");
    Session session = atFrame(1);
    FrameRecords records;
    loadFrame(play.file, session, records, 1);
    ASSERT_EQ(records.offPlayers.size(), 2U);
    EXPECT_EQ(records.offPlayers[1].txt, "9");
    saveFrame(play.file, session, records, 1, false);
    EXPECT_EQ(play.file.readWhole("Frame1", "off0"), "1,2");
    EXPECT_EQ(play.file.readWhole("Frame1", "off1"), "5,6");
    EXPECT_EQ(play.file.readWhole("Frame1", "off2"), "5,6");
    loadFrame(play.file, session, records, 1);
    ASSERT_EQ(records.offPlayers.size(), 3U);
    EXPECT_EQ(records.offPlayers[1].txt, "7");
    EXPECT_EQ(records.offPlayers[2].txt, "9");
}

TEST(LoadFrame, ChangesNoByteOfTheFile) {
    const std::string lines =
        "; hand made\nBall0=1,2,\n[Frame1]\nframe = 1\nBall0 = 3,4,\n\n[frame1]\nBall0=5,6,\n";
    const TemporaryPlay play(lines);
    Session session;
    FrameRecords records;
    loadFrame(play.file, session, records, 1);
    EXPECT_EQ(records.balls, (std::vector<BallRec>{{3, 4}}));
    EXPECT_TRUE(play.holds(lines));
}

TEST(CountFrames, AGapEndsTheCount) {
    const TemporaryPlay play("[Frame1]\nframe=1\n[Frame2]\nframe=2\n[Frame4]\nframe=4\n");
    EXPECT_EQ(countFrames(play.file), 2);
    EXPECT_TRUE(frameExists(play.file, 4));
}

TEST(CountFrames, GivesTheStoredNumberOfTheLastFrame) {
    EXPECT_EQ(countFrames(TemporaryPlay("[Frame1]\nframe=1\n[Frame2]\nframe=7\n").file), 7);
    EXPECT_EQ(countFrames(TemporaryPlay("[Frame1]\nframe=-5\n").file), -5);
    EXPECT_EQ(countFrames(TemporaryPlay("[Frame1]\nframe=70000\n").file), 4464);
    EXPECT_EQ(countFrames(TemporaryPlay("[Frame1]\nframe=x\n").file), 0);
}

TEST(CountFrames, OfNoFramesIsZero) {
    EXPECT_EQ(countFrames(TemporaryPlay().file), 0);
    EXPECT_EQ(countFrames(TemporaryPlay("[Frame2]\nframe=2\n").file), 0);
    EXPECT_EQ(countFrames(PlayFile("/no/such/play.zpf")), 0);
}

TEST(CountFrames, AFrameWithoutItsKeyDoesNotExist) {
    const TemporaryPlay play("[Frame1]\nframe=1\n[Frame2]\nframe=2\n[Frame3]\noff0=1,2\nBall0=1,2,\n");
    EXPECT_FALSE(frameExists(play.file, 3));
    EXPECT_EQ(countFrames(play.file), 2);
}

TEST(CountFrames, AStoredMinusOneDoesNotExist) {
    const TemporaryPlay play("[Frame1]\nframe=-1\n[Frame2]\nframe=65535\n");
    EXPECT_FALSE(frameExists(play.file, 1));
    EXPECT_FALSE(frameExists(play.file, 2));
    EXPECT_EQ(countFrames(play.file), 0);
}

TEST(CountFrames, EndsWithTheSixteenBitNumbers) {
    std::string lines;
    for (int i = 1; i <= 32800; ++i) {
        lines += "[Frame" + std::to_string(i) + "]\nframe=" + std::to_string(i) + "\n";
    }
    EXPECT_EQ(countFrames(TemporaryPlay(lines).file), 32767);
}

} // namespace

} // namespace zeltrona::document
