#include "document/frame_store.h"
#include "document/sequence.h"
#include "tests/document/temporary_play.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace zeltrona::document {

namespace {

using tests::TemporaryPlay;

/// A frame whose one ball tells its number.
std::string frameLines(int n) {
    const std::string number = std::to_string(n);
    return "[Frame" + number + "]\nframe=" + number + "\noff0=10,10\nBall0=" + number + ",100,\n";
}

std::string framesOf(std::initializer_list<int> numbers) {
    std::string lines;
    for (const int n : numbers) {
        lines += frameLines(n);
    }
    return lines;
}

class Sequence : public testing::Test {
protected:
    void open(std::string_view lines, std::int16_t frame) {
        play.folder.put(tests::crlf(lines));
        session.currFrame = frame;
        loadFrame(play.file, session, records, frame);
    }
    float shownBall() const { return records.balls[0].x; }
    WriteResult deleteShown() { return deleteShownFrame(play.file, session, records, play.folder.path("")); }

    TemporaryPlay play;
    Session session;
    FrameRecords records;
};

TEST_F(Sequence, PathEndsCarryPlayersAndBalls) {
    records.offPlayers = {{1, 1, "4", 2, 90, 7}, {2, 2, "5", 0, 0, 0}};
    records.defPlayers = {{3, 3, "A", 0, 0, 0}};
    records.balls = {{4, 4}, {5, 5}};
    records.offPaths = {{1, {{2, 2}, {30, 40.5F}}}};
    records.defPaths = {{0, {{3, 3}, {50, 60}}}};
    records.ballPaths = {{1, {{70, 80}}}, {0, {{4, 4}, {90, 95}}}};
    carryPathEnds(records);
    EXPECT_EQ(records.offPlayers[0], (PlayerRec{1, 1, "4", 2, 90, 7}));
    EXPECT_EQ(records.offPlayers[1], (PlayerRec{30, 40.5F, "5", 0, 0, 0}));
    EXPECT_EQ(records.defPlayers[0], (PlayerRec{50, 60, "A", 0, 0, 0}));
    EXPECT_EQ(records.balls, (std::vector<BallRec>{{90, 95}, {70, 80}}));
}

TEST_F(Sequence, WithoutPathsNobodyMoves) {
    records.balls = {{4, 4}};
    const FrameRecords before = records;
    carryPathEnds(records);
    EXPECT_EQ(records, before);
}

TEST_F(Sequence, APathBeyondTheNumberOfObjectsCarriesNobody) {
    records.balls = {{4, 4}, {5, 5}};
    records.ballPaths = {{1, {{1, 1}}}, {1, {{2, 2}}}, {0, {{3, 3}}}};
    carryPathEnds(records);
    EXPECT_EQ(records.balls, (std::vector<BallRec>{{4, 4}, {2, 2}}));
}

TEST_F(Sequence, AnOwnerWithoutAnObjectIsPassedOver) {
    records.balls = {{4, 4}, {5, 5}};
    records.ballPaths = {{9, {{1, 1}}}, {0, {{2, 2}}}};
    carryPathEnds(records);
    EXPECT_EQ(records.balls, (std::vector<BallRec>{{2, 2}, {5, 5}}));
}

TEST_F(Sequence, ANewFrameGoesToTheEndFromTheShownFramesState) {
    open("[Config]\ntxtOff0=4\n" + framesOf({1, 2, 3, 4, 5}), 2);
    records.balls[0] = {77, 78};
    EXPECT_TRUE(makeNewFrame(play.file, session, records).ok());
    EXPECT_EQ(session.currFrame, 6);
    EXPECT_EQ(countFrames(play.file), 6);
    EXPECT_EQ(play.file.readWhole("Frame2", "Ball0"), "77,78,");
    EXPECT_EQ(play.file.readWhole("Frame6", "Ball0"), "77,78,");
    EXPECT_EQ(play.file.readWhole("Frame5", "Ball0"), "5,100,");
}

TEST_F(Sequence, ANewFrameStandsAtThePathEndsWithoutPathsLinesShadowsAndTexts) {
    open("[Config]\ntxtOff0=4\n[Frame1]\nframe=1\noff0=10,2\nBall0=5,6,\n", 1);
    records.offPaths = {{0, {{10, 2}, {50.5F, 60}}}};
    records.triangles = {{7, 8, 9}};
    records.lines = {{4, 0, false, {{1, 2}, {3, 4}}}};
    records.shadows = {{1, 2, 3, 4, 5}};
    records.txtPics = {{"a", 1, 2, "Arial", 10, 0, false, false, false, false}};
    makeNewFrame(play.file, session, records);

    FrameRecords expected;
    expected.offPlayers = {{50.5F, 60, "4", 0, 0, 0}};
    expected.balls = {{5, 6}};
    expected.triangles = {{7, 8, 9}};
    EXPECT_EQ(records, expected);
    EXPECT_TRUE(
        play.holds("[Config]\ntxtOff0=4\nNotes1=\nNotes2=\n"
                   "[Frame1]\nframe=1\noff0=10,2\nBall0=5,6,\nangleoff0=0\nbodyoff0=0\n"
                   "off0curve=10,2,50.5,60,\nTriangle0=9,7,8,\nLine0=4,0,0,1,2,3,4,\nShadow0=5,1,2,3,4,\n"
                   "txtPic0=a,1,2,Arial,10,0,0,0,0,0,\n"
                   "[Frame2]\nframe=2\noff0=50,60\nangleoff0=0\nbodyoff0=0\nBall0=5,6,\nTriangle0=9,7,8,\n"));
}

TEST_F(Sequence, ANewFrameIsOneReplacement) {
    open(framesOf({1}), 1);
    int replacements = 0;
    play.file.setWriteObserver([&](const WriteResult&) { ++replacements; });
    makeNewFrame(play.file, session, records);
    EXPECT_EQ(replacements, 1);
}

TEST_F(Sequence, ANewFrameThatCannotBeWrittenLeavesEverything) {
    PlayFile nowhere("/proc/no-such-folder/play.zpf");
    records.balls = {{1, 2}};
    records.ballPaths = {{0, {{3, 4}}}};
    const FrameRecords before = records;
    EXPECT_FALSE(makeNewFrame(nowhere, session, records).ok());
    EXPECT_EQ(session.currFrame, 1);
    EXPECT_EQ(records, before);
}

TEST_F(Sequence, BehindTheLastNumberTheShownFrameIsStoredAndStays) {
    open("[Frame1]\nframe=32767\n", 1);
    records.balls = {{1, 2}};
    EXPECT_TRUE(makeNewFrame(play.file, session, records).ok());
    EXPECT_EQ(session.currFrame, 1);
    EXPECT_EQ(play.file.readWhole("Frame1", "Ball0"), "1,2,");
}

TEST_F(Sequence, DeletingAFrameInTheMiddleClosesTheGap) {
    open("[Config]\nNotes1=a\nNotes2=b\nNotes3=c\nNotes4=d\n" + framesOf({1, 2, 3, 4}), 2);
    EXPECT_TRUE(deleteShown().ok());
    EXPECT_TRUE(play.holds("[Config]\nNotes1=a\nNotes2=c\nNotes3=d\n"
                           "[Frame1]\nframe=1\noff0=10,10\nBall0=1,100,\n"
                           "[Frame2]\nframe=2\noff0=10,10\nBall0=3,100,\n"
                           "[Frame3]\nframe=3\noff0=10,10\nBall0=4,100,\n"));
    EXPECT_EQ(session.currFrame, 2);
    EXPECT_EQ(countFrames(play.file), 3);
    EXPECT_EQ(shownBall(), 3);
    EXPECT_EQ(play.folder.othersThan(), 0U);
}

TEST_F(Sequence, DeletingTheLastFrameShowsTheOneBefore) {
    open("[Config]\nNotes1=a\nNotes2=b\nNotes3=c\n" + framesOf({1, 2, 3}), 3);
    EXPECT_TRUE(deleteShown().ok());
    EXPECT_TRUE(play.holds("[Config]\nNotes1=a\nNotes2=b\n" + framesOf({1, 2})));
    EXPECT_EQ(session.currFrame, 2);
    EXPECT_EQ(shownBall(), 2);
}

TEST_F(Sequence, AFrameBeyondTheCountIsDeletedLikeTheLast) {
    open(framesOf({1, 2, 5}), 5);
    EXPECT_TRUE(deleteShown().ok());
    EXPECT_TRUE(play.holds(framesOf({1, 2})));
    EXPECT_EQ(session.currFrame, 2);
}

TEST_F(Sequence, AFrameBelowTheFirstIsDeletedWithoutRenumbering) {
    open("[Frame-10]\nframe=-10\nBall0=9,9,\n[Frame-9]\nframe=-9\n" + framesOf({1, 2}), -10);
    EXPECT_TRUE(deleteShown().ok());
    EXPECT_TRUE(play.holds("[Frame-9]\nframe=-9\n" + framesOf({1, 2})));
    EXPECT_EQ(session.currFrame, 2);
}

TEST_F(Sequence, APlayOfOneFrameLosesNone) {
    open(framesOf({1}), 1);
    EXPECT_EQ(checkDeletion(play.file, session), Deletion::OnlyFrame);
    EXPECT_TRUE(deleteShown().ok());
    EXPECT_TRUE(play.holds(framesOf({1})));
}

TEST_F(Sequence, TheFirstFrameOfManyIsKept) {
    open(framesOf({1, 2, 3}), 1);
    EXPECT_EQ(checkDeletion(play.file, session), Deletion::FirstFrame);
    EXPECT_TRUE(deleteShown().ok());
    EXPECT_TRUE(play.holds(framesOf({1, 2, 3})));
    session.currFrame = 2;
    EXPECT_EQ(checkDeletion(play.file, session), Deletion::Allowed);
}

TEST_F(Sequence, ADeletionIsOneReplacement) {
    open(framesOf({1, 2, 3}), 2);
    int replacements = 0;
    play.file.setWriteObserver([&](const WriteResult&) { ++replacements; });
    deleteShown();
    EXPECT_EQ(replacements, 1);
}

TEST_F(Sequence, ADeletionWithoutATemporaryPlaceLeavesEverything) {
    const std::string lines = "[Config]\nNotes2=b\n" + framesOf({1, 2, 3});
    open(lines, 2);
    std::filesystem::create_directories(play.folder.path("zqTmp.zpf") + "/inside");
    const FrameRecords before = records;
    EXPECT_FALSE(deleteShown().ok());
    EXPECT_TRUE(play.holds(lines));
    EXPECT_EQ(countFrames(play.file), 3);
    EXPECT_EQ(session.currFrame, 2);
    EXPECT_EQ(records, before);
}

TEST_F(Sequence, StepsDownAndUp) {
    open(framesOf({1, 2, 3}), 2);
    EXPECT_EQ(stepDown(play.file, session, records), StepOutcome::Shown);
    EXPECT_EQ(session.currFrame, 1);
    EXPECT_EQ(shownBall(), 1);
    EXPECT_EQ(stepUp(play.file, session, records, 3), StepOutcome::Shown);
    EXPECT_EQ(stepUp(play.file, session, records, 3), StepOutcome::Shown);
    EXPECT_EQ(session.currFrame, 3);
    EXPECT_EQ(shownBall(), 3);
}

TEST_F(Sequence, AtTheEndsNothingMoves) {
    open(framesOf({1, 2}), 1);
    records.balls[0] = {55, 55};
    EXPECT_EQ(stepDown(play.file, session, records), StepOutcome::AtEnd);
    EXPECT_EQ(session.currFrame, 1);
    EXPECT_EQ(shownBall(), 55);
    session.currFrame = 2;
    EXPECT_EQ(stepUp(play.file, session, records, 2), StepOutcome::AtEnd);
    EXPECT_EQ(session.currFrame, 2);
    EXPECT_EQ(shownBall(), 55);
}

TEST_F(Sequence, AStepDropsWhatWasNotSaved) {
    open(framesOf({1, 2}), 1);
    records.balls[0] = {55, 55};
    stepUp(play.file, session, records, 2);
    stepDown(play.file, session, records);
    EXPECT_EQ(shownBall(), 1);
}

TEST_F(Sequence, DownPassesOverAGap) {
    open(framesOf({1, 5}), 5);
    EXPECT_EQ(stepDown(play.file, session, records), StepOutcome::Shown);
    EXPECT_EQ(session.currFrame, 1);
    EXPECT_EQ(shownBall(), 1);
}

TEST_F(Sequence, DownWithoutAnyFrameBelowEndsAtOne) {
    open(framesOf({5}), 5);
    EXPECT_EQ(stepDown(play.file, session, records), StepOutcome::NoFirst);
    EXPECT_EQ(session.currFrame, 1);
    EXPECT_EQ(shownBall(), 5);
}

TEST_F(Sequence, UpPassesOverAGap) {
    open(framesOf({1, 4}), 1);
    EXPECT_EQ(stepUp(play.file, session, records, 4), StepOutcome::Shown);
    EXPECT_EQ(session.currFrame, 4);
    EXPECT_EQ(shownBall(), 4);
}

TEST_F(Sequence, UpWithoutAnyFrameAboveLoadsTheLastNumber) {
    open("[Frame1]\nframe=4\nBall0=1,1,\n[Frame4]\nBall0=9,9,\n", 1);
    EXPECT_EQ(stepUp(play.file, session, records, 4), StepOutcome::NoLast);
    EXPECT_EQ(session.currFrame, 4);
    EXPECT_EQ(shownBall(), 9);
}

TEST_F(Sequence, UpFromBelowTheFirstShowsTheFirst) {
    open(framesOf({1, 2}), 0);
    EXPECT_EQ(stepUp(play.file, session, records, 2), StepOutcome::Shown);
    EXPECT_EQ(session.currFrame, 1);
    EXPECT_EQ(shownBall(), 1);
}

} // namespace

} // namespace zeltrona::document
