#include "tests/editor/editor_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A desk with no object but the players.
struct BareDesk : Desk {
    BareDesk() { records.balls = {{1000, 1000}}; }

    std::string removedAt(float x, float y) {
        host.calls.clear();
        const auto before = records;
        deleteObjectAt(editor, x, y);
        records = before;
        const auto removed = callsOf("remove");
        return removed.empty() ? "" : removed[0];
    }
};

struct Place {
    float x;
    float y;
};

void expectHits(BareDesk& desk, const std::string& wanted, const std::vector<Place>& places) {
    for (const auto& place : places) {
        EXPECT_EQ(desk.removedAt(place.x, place.y), wanted) << place.x << ' ' << place.y;
    }
}

TEST(DeleteTool, NothingHitDoesNothingAtAll) {
    Desk desk;
    const auto before = desk.records;
    deleteObjectAt(desk.editor, 250, 50);
    EXPECT_THAT(desk.host.calls, IsEmpty());
    EXPECT_EQ(desk.records, before);
}

TEST(DeleteTool, RemovesThenRedraws) {
    Desk desk;
    deleteObjectAt(desk.editor, 300, 250);
    EXPECT_THAT(desk.host.calls, ElementsAre("remove ball 0", "redraw 0 0"));
}

TEST(DeleteTool, PlayersStay) {
    Desk desk;
    const auto before = desk.records;
    deleteObjectAt(desk.editor, 110, 110);
    deleteObjectAt(desk.editor, 210, 110);
    EXPECT_EQ(desk.records, before);
}

TEST(DeleteTool, BallsBoxLiesAroundAndAboveItsPlace) {
    BareDesk desk;
    desk.records.balls = {{100, 100}};
    expectHits(desk, "remove ball 0", {{87, 80}, {113, 80}, {87, 106}, {113, 106}});
    expectHits(desk, "", {{86, 90}, {114, 90}, {100, 79}, {100, 107}});
}

TEST(DeleteTool, BallsBoxIsRoundedAfterTheSubtraction) {
    BareDesk desk;
    desk.records.balls = {{100.5F, 100}};
    expectHits(desk, "remove ball 0", {{88, 90}, {114, 90}});
    expectHits(desk, "", {{87, 90}, {115, 90}});
}

TEST(DeleteTool, TrianglesBoxStandsOnItsPlace) {
    BareDesk desk;
    desk.records.triangles = {{50, 60, 1}};
    expectHits(desk, "remove triangle 0", {{50, 48}, {62, 48}, {50, 60}, {62, 60}});
    expectHits(desk, "", {{49, 55}, {63, 55}, {55, 47}, {55, 61}});
}

TEST(DeleteTool, ShadowsBoxIsTheSameForAnyOrderOfItsCorners) {
    const document::ShadowRec shadows[] = {
        {50, 60, 90, 80, 1}, {90, 80, 50, 60, 1}, {90, 60, 50, 80, 1}, {50, 80, 90, 60, 1}};
    for (const auto& shadow : shadows) {
        BareDesk desk;
        desk.records.shadows = {shadow};
        expectHits(desk, "remove shadow 0", {{50, 60}, {90, 60}, {50, 80}, {90, 80}});
        expectHits(desk, "", {{49, 70}, {91, 70}, {70, 59}, {70, 81}});
    }
}

TEST(DeleteTool, FlatShadowIsHitAlongItsLineEitherWayDrawn) {
    const document::ShadowRec shadows[] = {{50, 60, 50, 80, 1}, {50, 80, 50, 60, 1}};
    for (const auto& shadow : shadows) {
        BareDesk desk;
        desk.records.shadows = {shadow};
        expectHits(desk, "remove shadow 0", {{50, 60}, {50, 70}, {50, 80}});
        expectHits(desk, "", {{49, 70}, {51, 70}, {50, 81}, {50, 59}});
    }
    const document::ShadowRec level[] = {{50, 60, 90, 60, 1}, {90, 60, 50, 60, 1}};
    for (const auto& shadow : level) {
        BareDesk desk;
        desk.records.shadows = {shadow};
        expectHits(desk, "remove shadow 0", {{50, 60}, {70, 60}, {90, 60}});
        expectHits(desk, "", {{70, 59}, {70, 61}, {91, 60}, {49, 60}});
    }
}

TEST(DeleteTool, ShadowsSizesAreRoundedOnTheirOwn) {
    BareDesk desk;
    desk.records.shadows = {{50.5F, 60, 90, 80, 1}};
    expectHits(desk, "remove shadow 0", {{50, 60}, {90, 80}});
    expectHits(desk, "", {{91, 70}});
}

TEST(DeleteTool, TextsBoxIsMeasuredAndStandsOnItsPlace) {
    BareDesk desk;
    document::TxtPicRec picture;
    picture.text = "four";
    picture.x = 50;
    picture.y = 60;
    desk.records.txtPics = {picture};
    expectHits(desk, "remove text 0", {{50, 46}, {74, 46}, {50, 60}, {74, 60}});
    expectHits(desk, "", {{49, 50}, {75, 50}, {60, 45}, {60, 61}});
}

TEST(DeleteTool, UprightSegmentHasABandOfFour) {
    for (const bool down : {true, false}) {
        BareDesk desk;
        desk.records.lines = {{0, 1, false, {{50, down ? 60.0F : 90.0F}, {50, down ? 90.0F : 60.0F}}}};
        expectHits(desk, "remove line 0", {{48, 60}, {52, 60}, {48, 90}, {52, 90}});
        expectHits(desk, "", {{47, 70}, {53, 70}, {50, 59}, {50, 91}});
    }
}

TEST(DeleteTool, LevelSegmentHasABandOfFour) {
    for (const bool right : {true, false}) {
        BareDesk desk;
        desk.records.lines = {{0, 1, false, {{right ? 50.0F : 90.0F, 60}, {right ? 90.0F : 50.0F, 60}}}};
        expectHits(desk, "remove line 0", {{50, 58}, {50, 62}, {90, 58}, {90, 62}});
        expectHits(desk, "", {{70, 57}, {70, 63}, {49, 60}, {91, 60}});
    }
}

TEST(DeleteTool, BandAtTheBoardsEdgeStartsAtTheEdge) {
    BareDesk desk;
    desk.records.lines = {{0, 1, false, {{1, 60}, {1, 90}}}};
    expectHits(desk, "remove line 0", {{0, 70}, {4, 70}});
    expectHits(desk, "", {{5, 70}, {-1, 70}});
    desk.records.lines = {{0, 1, false, {{60, 1}, {90, 1}}}};
    expectHits(desk, "remove line 0", {{70, 0}, {70, 4}});
    expectHits(desk, "", {{70, 5}, {70, -1}});
}

TEST(DeleteTool, SlantedSegmentIsHitAnywhereInItsRectangle) {
    const document::LineRec lines[] = {{0, 1, false, {{50, 60}, {90, 80}}},
                                       {0, 1, false, {{90, 60}, {50, 80}}}};
    for (const auto& line : lines) {
        BareDesk desk;
        desk.records.lines = {line};
        expectHits(desk, "remove line 0", {{50, 60}, {90, 60}, {50, 80}, {90, 80}, {70, 70}});
        expectHits(desk, "", {{49, 70}, {91, 70}, {70, 59}, {70, 81}});
    }
}

TEST(DeleteTool, EverySegmentOfALineCountsCurvedOrNot) {
    for (const bool curved : {false, true}) {
        BareDesk desk;
        desk.records.lines = {{0, 1, false, {{300, 300}, {310, 310}}},
                              {0, 1, curved, {{50, 60}, {90, 80}, {90, 200}, {95, 200}}}};
        expectHits(desk, "remove line 1", {{60, 62}, {91, 150}, {94, 199}});
    }
}

TEST(DeleteTool, LineOfOnePointOrNoneIsNeverHit) {
    BareDesk desk;
    desk.records.lines = {{0, 1, false, {{50, 60}}}, {0, 1, false, {}}};
    expectHits(desk, "", {{50, 60}, {51, 60}});
}

TEST(DeleteTool, SegmentWithoutLengthHasTheUprightBand) {
    BareDesk desk;
    desk.records.lines = {{0, 1, false, {{50, 60}, {50, 60}}}};
    expectHits(desk, "remove line 0", {{48, 60}, {52, 60}});
    expectHits(desk, "", {{50, 61}, {50, 59}});
}

TEST(DeleteTool, EmptyElementsLieAtTheCornerAndAreHitThere) {
    Desk desk;
    document::resetBalls(desk.records.balls);
    deleteObjectAt(desk.editor, 13, 6);
    EXPECT_THAT(desk.host.calls, ElementsAre("remove ball 0", "redraw 0 0"));
    EXPECT_FALSE(hasBalls(desk.records.balls));
    BareDesk bare;
    EXPECT_EQ(bare.removedAt(12, 0), "remove triangle 0");
    bare.records.triangles = {{300, 300, 1}};
    EXPECT_EQ(bare.removedAt(0, 0), "remove shadow 0");
    bare.records.shadows = {{300, 300, 310, 310, 1}};
    EXPECT_EQ(bare.removedAt(0, 0), "remove text 0");
    bare.records.txtPics[0].x = 300;
    EXPECT_EQ(bare.removedAt(0, 0), "");
}

TEST(DeleteTool, SearchesByClassAndWithinItFromTheFirst) {
    Desk desk;
    document::TxtPicRec picture;
    picture.text = "text";
    picture.x = 95;
    picture.y = 105;
    picture.fontSize = 8;
    desk.records.balls = {{300, 300}, {100, 100}, {101, 101}};
    desk.records.triangles = {{98, 105, 1}, {97, 105, 1}};
    desk.records.shadows = {{90, 90, 110, 110, 1}};
    desk.records.txtPics = {picture};
    desk.records.lines = {{0, 1, false, {{90, 90}, {110, 110}}}};
    for (int i = 0; i < 7; ++i) {
        deleteObjectAt(desk.editor, 100, 100);
    }
    EXPECT_THAT(desk.callsOf("remove"),
                ElementsAre("remove ball 1", "remove ball 1", "remove triangle 0", "remove triangle 0",
                            "remove shadow 0", "remove text 0", "remove line 0"));
}

TEST(DeleteTool, PointerIsRounded) {
    BareDesk desk;
    desk.records.triangles = {{50, 60, 1}};
    expectHits(desk, "remove triangle 0", {{49.5F, 55}, {62.5F, 55}});
    expectHits(desk, "", {{49.25F, 55}, {62.75F, 55}});
}

TEST(DeleteTool, ObjectFarOutsideTheBoardIsNoTrap) {
    BareDesk desk;
    desk.records.lines = {{0, 1, false, {{-3e9F, 10}, {3e9F, 20}}}};
    desk.records.shadows = {{1e30F, -1e30F, 5, 5, 1}};
    EXPECT_NE(desk.removedAt(200, 200), "remove ball 0");
}

} // namespace
} // namespace zeltrona::editor
