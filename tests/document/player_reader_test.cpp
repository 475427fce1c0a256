#include "document/frame_records.h"
#include "document/frame_store.h"
#include "tests/document/temporary_play.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::document {

namespace {

using testing::ElementsAre;
using tests::TemporaryPlay;

std::vector<PlayerRec> offenceOf(std::string_view lines) {
    const TemporaryPlay play(lines);
    std::vector<PlayerRec> players{emptyPlayer()};
    readFramePlayers(play.file, 1, "off", players);
    return players;
}

PlayerRec plain(float x, float y, const std::string& label) {
    return {x, y, label, 0, 0, 0};
}

TEST(PlayerReader, PutsAPlayerTogetherFromFrameAndConfig) {
    EXPECT_THAT(offenceOf("[Config]\ntxtOff0=4\nskinOff0=12632256\n"
                          "[Frame1]\noff0=10,2\nangleOff0=90\nbodyOff0=3\n"),
                ElementsAre(PlayerRec{10, 2, "4", 3, 90, 12632256}));
}

TEST(PlayerReader, AbsentKeysGiveZeroes) {
    EXPECT_THAT(offenceOf("[Config]\ntxtOff0=4\n[Frame1]\noff0=10,2\n"), ElementsAre(plain(10, 2, "4")));
}

TEST(PlayerReader, AHoleClosesUpAndKeepsLabelAndSkinOfItsSlot) {
    EXPECT_THAT(offenceOf("[Config]\ntxtOff0=4\nskinOff0=1\ntxtOff2=9\nskinOff2=3\n"
                          "[Frame1]\noff0=10,2\noff2=30,40\nangleOff2=45\n"),
                ElementsAre(PlayerRec{10, 2, "4", 0, 0, 1}, PlayerRec{30, 40, "9", 0, 45, 3}));
}

TEST(PlayerReader, OnlyTwelveSlotsAreTried) {
    EXPECT_THAT(offenceOf("[Config]\ntxtOff11=a\ntxtOff12=b\n[Frame1]\noff11=1,2\noff12=3,4\n"),
                ElementsAre(plain(1, 2, "a")));
}

TEST(PlayerReader, EightCharactersOfAPositionComeBack) {
    EXPECT_THAT(offenceOf("[Config]\ntxtOff0=4\n[Frame1]\noff0=1000,1000\n"),
                ElementsAre(plain(1000, 100, "4")));
    EXPECT_THAT(offenceOf("[Config]\ntxtOff0=4\n[Frame1]\noff0=1000,100\n"),
                ElementsAre(plain(1000, 100, "4")));
}

TEST(PlayerReader, EightCharactersOfALabelComeBackAndTheFileKeepsAll) {
    const std::string lines = "[Config]\ntxtOff0=Pointguard\n[Frame1]\noff0=1,2\n";
    const TemporaryPlay play(lines);
    std::vector<PlayerRec> players;
    readFramePlayers(play.file, 1, "off", players);
    EXPECT_THAT(players, ElementsAre(plain(1, 2, "Pointgua")));
    EXPECT_TRUE(play.holds(lines));
}

TEST(PlayerReader, APlayerWithoutALabelIsDropped) {
    EXPECT_THAT(offenceOf("[Config]\ntxtOff1=\n[Frame1]\noff0=1,2\noff1=3,4\n"), ElementsAre(emptyPlayer()));
}

TEST(PlayerReader, APositionWithoutTwoNumbersIsDropped) {
    for (const char* position :
         {"", "10", "10;2", ",", "10,", ",2", "a,2", "10,b", "10,2,", "nan,2", "1,inf"}) {
        EXPECT_THAT(offenceOf("[Config]\ntxtOff0=4\n[Frame1]\noff0=" + std::string(position) + "\n"),
                    ElementsAre(emptyPlayer()))
            << position;
    }
}

TEST(PlayerReader, FractionsAndSignsAreRead) {
    EXPECT_THAT(offenceOf("[Config]\ntxtOff0=4\n[Frame1]\noff0=-1.5,2.5\n"),
                ElementsAre(plain(-1.5F, 2.5F, "4")));
}

TEST(PlayerReader, DefenceHasKeysOfItsOwn) {
    const TemporaryPlay play("[Config]\ntxtOff0=4\ntxtDef0=A\nskinDef0=7\n"
                             "[Frame1]\noff0=1,2\ndef0=324,2\nangleDef0=135\nbodyDef0=1\n");
    std::vector<PlayerRec> players;
    readFramePlayers(play.file, 1, "def", players);
    EXPECT_THAT(players, ElementsAre(PlayerRec{324, 2, "A", 1, 135, 7}));
}

TEST(PlayerReader, LeavesItsDestinationWhenTheFrameHasNobody) {
    const TemporaryPlay play("[Config]\ntxtOff0=4\n[Frame2]\nframe=2\n");
    std::vector<PlayerRec> players{plain(1, 2, "4"), plain(3, 4, "5")};
    readFramePlayers(play.file, 2, "off", players);
    EXPECT_THAT(players, ElementsAre(plain(1, 2, "4"), plain(3, 4, "5")));
}

TEST(PlayerReader, DropsWhatTheDestinationHeldAtTheFirstPlayer) {
    const TemporaryPlay play("[Config]\ntxtOff0=4\n[Frame1]\noff0=10,2\n");
    std::vector<PlayerRec> players(5, plain(9, 9, "9"));
    readFramePlayers(play.file, 1, "off", players);
    EXPECT_THAT(players, ElementsAre(plain(10, 2, "4")));
}

TEST(PlayerReader, AnglesAndBodiesOutsideTheirRangeAreReadAsTheyStand) {
    const auto read = [](const std::string& value) {
        const PlayerRec player = offenceOf("[Config]\ntxtOff0=4\n[Frame1]\noff0=1,2\nangleOff0=" + value
                                           + "\nbodyOff0=" + value + "\n")[0];
        EXPECT_EQ(player.angle, player.body);
        return player.angle;
    };
    EXPECT_EQ(read("361"), 361);
    EXPECT_EQ(read("720"), 720);
    EXPECT_EQ(read("-15"), -15);
    EXPECT_EQ(read("9"), 9);
    EXPECT_EQ(read("65537"), 1);
    EXPECT_EQ(read("up"), 0);
}

} // namespace

} // namespace zeltrona::document
