#include "document/new_layout.h"
#include "document/number_text.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace zeltrona::document {

namespace {

/// The places of both sides, offence and defence, as "x,y x,y ...".
struct LayoutCase {
    const char* name;
    std::int16_t court;
    std::int16_t bodyType;
    const char* off;
    const char* def;
    friend std::ostream& operator<<(std::ostream& out, const LayoutCase& row) { return out << row.name; }
};

class NewLayout : public testing::TestWithParam<LayoutCase> {};

FrameRecords newTeams() {
    FrameRecords records;
    records.offPlayers.assign(12, {10, 10, "1", 0, 90, 0});
    records.defPlayers.assign(12, {10, 40, "2", 0, 90, 0});
    return records;
}

std::string placesOf(const std::vector<PlayerRec>& players) {
    std::string places;
    for (const PlayerRec& player : players) {
        places += places.empty() ? "" : " ";
        places += singleText(player.x) + "," + singleText(player.y);
    }
    return places;
}

TEST_P(NewLayout, PutsAllTwelvePlayersOfASide) {
    Session session;
    session.court = GetParam().court;
    session.bodyType = GetParam().bodyType;
    FrameRecords records = newTeams();
    placeNewPlayers(session, records);
    EXPECT_EQ(placesOf(records.offPlayers), GetParam().off);
    EXPECT_EQ(placesOf(records.defPlayers), GetParam().def);
}

constexpr LayoutCase kSmallCircles{
    "SmallCircles", 1, 0, "10,2 10,29 10,56 10,83 10,110 10,137 10,164 10,191 10,218 10,245 10,272 10,299",
    "324,2 324,29 324,56 324,83 324,110 324,137 324,164 324,191 324,218 324,245 324,272 324,299"};
constexpr LayoutCase kSmallBodies{
    "SmallBodies", 8, 1, "10,2 10,52 10,102 10,152 10,202 65,252 65,2 65,52 65,102 65,152 65,202 65,252",
    "300,2 300,52 300,102 300,152 300,202 245,252 245,2 245,52 245,102 245,152 245,202 245,252"};
constexpr LayoutCase kBigCircles{
    "BigCircles", 3, 0, "10,10 41,10 72,10 103,10 134,10 165,10 196,10 227,10 258,10 289,10 320,10 351,10",
    "10,254 41,254 72,254 103,254 134,254 165,254 196,254 227,254 258,254 289,254 320,254 351,254"};
constexpr LayoutCase kBigBodies{
    "BigBodies", 9, 1, "0,5 44,5 88,5 132,5 176,5 220,5 264,5 308,5 352,5 396,5 440,5 484,5",
    "0,230 44,230 88,230 132,230 176,230 220,230 264,230 308,230 352,230 396,230 440,230 484,230"};
constexpr LayoutCase kNoCourt{"CourtWithoutPicture", 10, 0, kSmallCircles.off, kSmallCircles.def};

INSTANTIATE_TEST_SUITE_P(AllCourts, NewLayout,
                         testing::Values(kSmallCircles, kSmallBodies, kBigCircles, kBigBodies, kNoCourt),
                         [](const auto& given) { return given.param.name; });

TEST(NewLayoutSides, AnEmptySideStaysEmpty) {
    Session session;
    session.court = 1;
    FrameRecords records = newTeams();
    resetPlayers(records.defPlayers);
    placeNewPlayers(session, records);
    EXPECT_FALSE(hasPlayers(records.defPlayers));
    EXPECT_EQ(records.offPlayers[11].y, 299);
}

TEST(NewLayoutSides, ASideEndsAtItsFirstEmptyPlayer) {
    for (const std::int16_t bodyType : {std::int16_t{0}, std::int16_t{1}}) {
        Session session;
        session.court = 1;
        session.bodyType = bodyType;
        FrameRecords records = newTeams();
        records.offPlayers[1] = emptyPlayer();
        placeNewPlayers(session, records);
        EXPECT_EQ(records.offPlayers[0].y, 2);
        EXPECT_EQ(records.offPlayers[1], emptyPlayer());
        EXPECT_EQ(records.offPlayers[2], newTeams().offPlayers[2]);
    }
}

TEST(NewLayoutSides, OnlyPlacesChange) {
    Session session;
    session.court = 2;
    FrameRecords records = newTeams();
    placeNewPlayers(session, records);
    EXPECT_EQ(records.offPlayers[0], (PlayerRec{10, 2, "1", 0, 90, 0}));
}

} // namespace

} // namespace zeltrona::document
