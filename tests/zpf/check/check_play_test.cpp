#include "tests/zpf/check/checked_play.h"

#include <gtest/gtest.h>

namespace zeltrona::zpf {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CheckPlay, PlayInOrderHasNoFinding) {
    const std::string play = playWith("font=Arial,238,\nNotes1=Cut\ncolorOff=255\nskinOff0=5\n",
                                      "angleoff0=90\nbodyoff0=3\nBall0=1,2,\nBall0curve=1,2,3,4,\n"
                                      "Line0=4,0,0,1,2,3,4,\nTriangle0=0,1,2,\nShadow0=0,1,2,3,4,\n"
                                      "txtPic0=Screen,1,2,Arial,10,0,1,0,0,0,\noff1curve=5,6,7,8,\n");
    EXPECT_THAT(shortFindingsOf("       Zeltrona        \n========================\n\n" + play), IsEmpty());
    EXPECT_THAT(shortFindingsOf("; said by hand\n" + play + "; the end\n"), IsEmpty());
}

TEST(CheckPlay, SpellingOfNamesMayDifferInCase) {
    EXPECT_THAT(shortFindingsOf("[CONFIG]\nCOURT=1\ntxtoff0=4\n[frame1]\nFRAME=1\nOFF0=1,2\nangleOff0=90\n"
                                "ball0=1,2,\nball0CURVE=1,2,3,4,\n"),
                IsEmpty());
}

TEST(CheckPlay, CountsTheFramesThatCanBeReached) {
    const tests::TemporaryPlay play("[Frame1]\nframe=1\n[Frame2]\nframe=9\n[Frame4]\nframe=4\n");
    EXPECT_EQ(checkPlay(play.file).frames, 2);
}

TEST(CheckPlay, FileThatIsNoPlayHasNoFrame) {
    EXPECT_THAT(shortFindingsOf(""), ElementsAre("no-frame 0"));
    EXPECT_THAT(shortFindingsOf("some letter\nto nobody\n"), ElementsAre("no-frame 0"));
}

TEST(CheckPlay, FrameBehindAGapIsOutOfReach) {
    EXPECT_THAT(shortFindingsOf("[Frame1]\nframe=1\n[Frame2]\nframe=2\n[Frame4]\nframe=4\n"),
                ElementsAre("gap [Frame4] 5"));
}

TEST(CheckPlay, SectionWithoutItsMarkIsNoFrame) {
    EXPECT_THAT(shortFindingsOf("[Frame1]\nframe=1\n[Frame2]\nBall0=1,2,\n[Frame3]\nframe=3\n"),
                ElementsAre("no-mark [Frame2] 3", "gap [Frame3] 5"));
    EXPECT_THAT(shortFindingsOf("[Frame1]\nframe=1\n[Frame2]\nframe=-1\n"),
                ElementsAre("no-mark [Frame2] 3"));
}

TEST(CheckPlay, MarkWithAnotherNumberIsTold) {
    EXPECT_THAT(shortFindingsOf("[Frame1]\nframe=1\n[Frame2]\nframe=7\n"),
                ElementsAre("wrong-number [Frame2] frame 4"));
}

TEST(CheckPlay, SecondSectionAndKeyOfANameAreTold) {
    EXPECT_THAT(shortFindingsOf("[Frame1]\nframe=1\nBall0=1,2,\nball0=3,4,\n[FRAME1]\nBall1=5,6,\n"),
                ElementsAre("repeated-key [Frame1] ball0 4", "repeated-section [FRAME1] 5"));
}

TEST(CheckPlay, KeyAheadOfTheFirstSectionIsTold) {
    EXPECT_THAT(shortFindingsOf("\xEF\xBB\xBF[Config]\ncourt=1\n[Frame1]\nframe=1\n"),
                ElementsAre("outside-section court 2"));
}

TEST(CheckPlay, LineThatIsNoKeyIsTold) {
    EXPECT_THAT(shortFindingsOf("[Config]\nNotes1=Cut to\nthe corner\n[Frame1]\nframe=1\n"),
                ElementsAre("no-key [Config] 3"));
}

TEST(CheckPlay, NamesThatNobodyReadsAreTold) {
    EXPECT_THAT(
        shortFindingsOf("[Config]\ncolour=1\n[Frame1]\nframe=1\nBall=1,2,\nBall00=1,2,\noff12=1,2\n"
                        "off12curve=1,2,3,4,\nBall101curve=1,2,3,4,\n[Frame01]\nframe=1\n[Notes]\na=b\n"),
        ElementsAre("unknown-key [Config] colour 2", "unknown-key [Frame1] Ball 5",
                    "unknown-key [Frame1] Ball00 6", "unknown-key [Frame1] off12 7",
                    "unknown-key [Frame1] off12curve 8", "unknown-key [Frame1] Ball101curve 9",
                    "unknown-section [Frame01] 10", "unknown-section [Notes] 12"));
}

TEST(CheckPlay, LeavesTheFileAlone) {
    const std::string lines = playWith("", "Ball2=1,2,\n");
    const tests::TemporaryPlay play(lines);
    checkPlay(play.file);
    EXPECT_TRUE(play.holds(lines));
    EXPECT_EQ(play.folder.othersThan(), 0U);
}

} // namespace
} // namespace zeltrona::zpf
