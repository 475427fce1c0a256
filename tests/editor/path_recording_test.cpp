#include "editor/path_recording.h"
#include "tests/editor/editor_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;
using document::PathRec;
using document::PointF;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<PathRec> noPaths() {
    return {document::emptyPath()};
}

std::vector<PointF> points(std::size_t count) {
    return std::vector<PointF>(count, PointF{3, 4});
}

TEST(RecordPathPoint, FirstPathFillsTheEmptyElement) {
    auto paths = noPaths();
    EXPECT_EQ(recordPathPoint(paths, 7, {10.5F, 20}), PathPoint::Recorded);
    EXPECT_THAT(paths, ElementsAre(PathRec{7, {{10.5F, 20}}}));
}

TEST(RecordPathPoint, SecondOwnerGetsAPathOfItsOwn) {
    auto paths = noPaths();
    recordPathPoint(paths, 7, {10, 20});
    recordPathPoint(paths, 2, {30, 40});
    EXPECT_THAT(paths, ElementsAre(PathRec{7, {{10, 20}}}, PathRec{2, {{30, 40}}}));
}

TEST(RecordPathPoint, KnownOwnersPathGrows) {
    auto paths = noPaths();
    recordPathPoint(paths, 7, {10, 20});
    recordPathPoint(paths, 2, {30, 40});
    recordPathPoint(paths, 7, {11, 21});
    EXPECT_THAT(paths, ElementsAre(PathRec{7, {{10, 20}, {11, 21}}}, PathRec{2, {{30, 40}}}));
}

TEST(RecordPathPoint, FirstPathOfTheOwnerCounts) {
    std::vector<PathRec> paths{{3, {{1, 1}}}, {5, {{2, 2}}}, {5, {{3, 3}}}};
    recordPathPoint(paths, 5, {9, 9});
    EXPECT_EQ(paths[1].pts.size(), 2U);
    EXPECT_EQ(paths[2].pts.size(), 1U);
}

TEST(RecordPathPoint, PathThatStartsAtTheCornerCountsAsNoneAndIsTakenOver) {
    std::vector<PathRec> paths{{0, {{0, 0}, {5, 5}}}, {4, {{6, 6}}}};
    recordPathPoint(paths, 4, {9, 9});
    EXPECT_THAT(paths, ElementsAre(PathRec{4, {{9, 9}, {5, 5}}}, PathRec{4, {{6, 6}}}));
}

TEST(RecordPathPoint, PathTakesNineHundredAndTwoPoints) {
    std::vector<PathRec> paths{{1, points(901)}};
    EXPECT_EQ(recordPathPoint(paths, 1, {9, 9}), PathPoint::Recorded);
    EXPECT_EQ(paths[0].pts.size(), 902U);
    EXPECT_EQ(recordPathPoint(paths, 1, {9, 9}), PathPoint::PathFull);
    EXPECT_EQ(paths[0].pts.size(), 902U);
}

TEST(RecordPathPoint, GrowsInLinearTimeByRareMoves) {
    auto paths = noPaths();
    std::size_t moves = 0;
    const PointF* place = nullptr;
    for (int i = 0; i < 902; ++i) {
        recordPathPoint(paths, 1, {1, 2});
        moves += paths[0].pts.data() != place ? 1U : 0U;
        place = paths[0].pts.data();
    }
    EXPECT_LT(moves, 20U);
}

TEST(RecordPathPoint, FullPathOfOneOwnerLeavesTheOthersFree) {
    std::vector<PathRec> paths{{1, points(902)}};
    EXPECT_EQ(recordPathPoint(paths, 2, {9, 9}), PathPoint::Recorded);
    EXPECT_EQ(paths.size(), 2U);
}

TEST(RecordPathPoint, LargestOwnerIsTwoHundredFiftyFive) {
    auto paths = noPaths();
    EXPECT_EQ(recordPathPoint(paths, 256, {9, 9}), PathPoint::Recorded);
    EXPECT_THAT(paths, ElementsAre(document::emptyPath()));
    recordPathPoint(paths, 255, {9, 9});
    EXPECT_THAT(paths, ElementsAre(PathRec{255, {{9, 9}}}));
    EXPECT_EQ(recordPathPoint(paths, 256, {9, 9}), PathPoint::Recorded);
    EXPECT_EQ(paths.size(), 1U);
}

TEST(RecordPathPoint, PathWithoutPointsTakesItsFirst) {
    std::vector<PathRec> paths{{1, {}}};
    recordPathPoint(paths, 1, {9, 9});
    EXPECT_THAT(paths, ElementsAre(PathRec{1, {{9, 9}}}));
}

TEST(CurvedDrag, EveryMoveIsAPointAndTheFirstIsAfterTheFirstMove) {
    Desk desk;
    desk.host.isCurveChecked = true;
    desk.press(110, 105);
    desk.drag(111, 105);
    desk.drag(111, 105);
    desk.drag(120.5F, 107);
    EXPECT_THAT(desk.records.offPaths, ElementsAre(PathRec{0, {{101, 100}, {101, 100}, {110.5F, 102}}}));
}

TEST(CurvedDrag, ObjectComesBackToItsRoundedOriginAndThePathStays) {
    Desk desk;
    desk.records.balls = {{60.5F, 71.5F}};
    desk.host.isCurveChecked = true;
    desk.press(62, 72);
    desk.drag(80, 90);
    desk.release();
    EXPECT_EQ(desk.records.balls[0], (document::BallRec{60, 72}));
    EXPECT_THAT(desk.records.ballPaths, ElementsAre(PathRec{0, {{78, 90}}}));
}

TEST(CurvedDrag, SecondDragGoesOnAtTheEndOfTheFirst) {
    Desk desk;
    desk.host.isCurveChecked = true;
    for (int i = 0; i < 2; ++i) {
        desk.press(210, 105);
        desk.drag(220, 110);
        desk.drag(230, 115);
        desk.release();
        EXPECT_EQ(desk.records.defPlayers[0].x, 200.0F);
        EXPECT_EQ(desk.records.defPlayers[0].y, 100.0F);
    }
    EXPECT_THAT(desk.records.defPaths,
                ElementsAre(PathRec{0, {{210, 105}, {220, 110}, {210, 105}, {220, 110}}}));
}

TEST(CurvedDrag, BallAndPlayerTogetherGiveTwoPathsFromTheSameMoves) {
    for (const bool isDefence : {false, true}) {
        Desk desk;
        auto& player = isDefence ? desk.records.defPlayers[0] : desk.records.offPlayers[0];
        const auto& paths = isDefence ? desk.records.defPaths : desk.records.offPaths;
        desk.host.isCurveChecked = true;
        desk.press(player.x + 10, player.y + 10, kLeft, kShift);
        desk.release(kShift);
        desk.press(310, 260, kLeft, kShift);
        desk.drag(300, 250);
        desk.drag(290, 240);
        desk.release();
        EXPECT_THAT(desk.records.ballPaths, ElementsAre(PathRec{0, {{290, 240}, {280, 230}}}));
        const PointF start{player.x, player.y};
        EXPECT_THAT(paths,
                    ElementsAre(PathRec{0, {{start.x - 10, start.y - 10}, {start.x - 20, start.y - 20}}}));
        EXPECT_EQ(desk.records.balls[0], (document::BallRec{300, 250}));
    }
}

TEST(CurvedDrag, MessageComesAtEveryFurtherMove) {
    Desk desk;
    desk.host.isCurveChecked = true;
    desk.press(110, 105);
    for (int i = 0; i < 905; ++i) {
        desk.drag(static_cast<float>(50 + i % 200), 60);
    }
    EXPECT_EQ(desk.records.offPaths[0].pts.size(), 902U);
    EXPECT_EQ(desk.countOf("message"), 3U);
    EXPECT_EQ(desk.countOf("redraw"), 902U);
}

TEST(CurvedDrag, UncheckingTheBoxInTheMiddleKeepsTheObjectWhereItIs) {
    Desk desk;
    desk.host.isCurveChecked = true;
    desk.press(110, 105);
    desk.drag(120, 105);
    desk.host.isCurveChecked = false;
    desk.drag(130, 105);
    desk.release();
    EXPECT_EQ(desk.records.offPlayers[0].x, 120.0F);
    EXPECT_EQ(desk.records.offPaths[0].pts.size(), 1U);
}

TEST(StraightDrag, LeavesNoPath) {
    Desk desk;
    desk.press(110, 105);
    desk.drag(150, 105);
    desk.release();
    EXPECT_FALSE(hasPaths(desk.records.offPaths));
    EXPECT_EQ(desk.records.offPlayers[0].x, 140.0F);
}

} // namespace
} // namespace zeltrona::editor
