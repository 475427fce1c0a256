#include "tests/zpf/check/checked_play.h"

#include <gtest/gtest.h>

namespace zeltrona::zpf {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::string_view kThree = "[Config]\ntxtOff0=4\ntxtOff1=5\ntxtOff2=6\n[Frame1]\nframe=1\n";

std::vector<std::string> afterThree(const std::string& lines) {
    return shortFindingsOf(std::string(kThree) + lines);
}

TEST(FrameCheck, PlayerWithoutALabelIsDropped) {
    EXPECT_THAT(afterThree("off0=1,2\noff1=1,2\noff2=1,2\noff3=1,2\n"),
                ElementsAre("missing-label [Frame1] off3 10"));
    EXPECT_THAT(shortFindingsOf("[Config]\ntxtDef0=\n[Frame1]\nframe=1\ndef0=1,2\n"),
                ElementsAre("missing-label [Frame1] def0 5"));
}

TEST(FrameCheck, PlaceThatIsNoneDropsThePlayer) {
    EXPECT_THAT(afterThree("off0=1,2\noff1=3\noff2=3,x\n"),
                ElementsAre("bad-place [Frame1] off1 8", "bad-place [Frame1] off2 9"));
}

TEST(FrameCheck, PlaceLongerThanEightCharactersIsCut) {
    EXPECT_THAT(afterThree("off0=1000,100\noff1=1000,1000\noff2=1,2\n"), ElementsAre("cut [Frame1] off1 8"));
}

TEST(FrameCheck, PlayersMoveUpOverAnEmptySlot) {
    const auto found = findingsOf(std::string(kThree) + "off0=1,2\noff2=3,4\n");
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(shortOf(found[0]), "stale-key [Config] txtOff1 3");
    EXPECT_EQ(shortOf(found[1]), "slot-hole [Frame1] off2 8");
    EXPECT_THAT(found[1].text, HasSubstr("store it as off1"));
}

TEST(FrameCheck, UnlikeTeamsOfNeighbourFramesAreTold) {
    const std::string full = "off0=1,2\noff1=1,2\noff2=1,2\n";
    const auto found = findingsOf(std::string(kThree) + full + "[Frame2]\nframe=2\noff0=1,2\noff1=1,2\n"
                                  + "[Frame3]\nframe=3\n" + full);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(shortOf(found[0]), "team-size [Frame2] 10");
    EXPECT_THAT(found[0].text, HasSubstr("offence has 2 players, and 3 players in frame 1"));
    EXPECT_EQ(shortOf(found[1]), "team-size [Frame3] 14");
}

TEST(FrameCheck, FrameWithoutASideKeepsThatOfTheFrameBefore) {
    const auto found = findingsOf(playWith("", "", "[Frame2]\nframe=2\nBall0=1,2,\noff1curve=1,2,3,4,\n"));
    ASSERT_EQ(found.size(), 1U) << "the path belongs to a player that is still shown";
    EXPECT_THAT(found[0].text, HasSubstr("those stay on the board"));
}

TEST(FrameCheck, KeysWhoseOwnerIsGoneAreStale) {
    EXPECT_THAT(afterThree("off0=1,2\noff1=1,2\noff2=1,2\nangleoff4=90\nbodyoff5=1\noff3curve=1,2,3,4,\n"
                           "def0curve=1,2,3,4,\nBall0=1,2,\nBall1curve=1,2,3,4,\n"),
                ElementsAre("stale-key [Frame1] angleoff4 10", "stale-key [Frame1] bodyoff5 11",
                            "stale-key [Frame1] off3curve 12", "stale-key [Frame1] def0curve 13",
                            "stale-key [Frame1] Ball1curve 15"));
}

TEST(FrameCheck, PoseIsFromNoughtToThree) {
    EXPECT_THAT(shortFindingsOf(playWith("", "bodyoff0=4\nbodyoff1=x\n")),
                ElementsAre("bad-value [Frame1] bodyoff0 9", "bad-value [Frame1] bodyoff1 10"));
}

TEST(FrameCheck, TurnIsAWholeNumberOf16Bits) {
    EXPECT_THAT(shortFindingsOf(playWith("", "angleoff0=-15\nangleoff1=40000\n")),
                ElementsAre("bad-value [Frame1] angleoff1 10"));
}

TEST(FrameCheck, LonePlayerThatEqualsTheEmptyStateCountsAsAbsent) {
    EXPECT_THAT(shortFindingsOf("[Config]\ntxtOff0=0\n[Frame1]\nframe=1\noff0=0,1000\n"),
                ElementsAre("empty-object [Frame1] off0 5"));
    EXPECT_THAT(shortFindingsOf("[Config]\ntxtOff0=1\n[Frame1]\nframe=1\noff0=0,1000\n"), IsEmpty());
}

} // namespace
} // namespace zeltrona::zpf
