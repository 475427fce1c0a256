#include "render/subdivide.h"
#include "tests/render/line_fixtures.h"

namespace zeltrona::render {
namespace {

using document::PointF;

struct Row {
    const char* name;
    PointF from, to;
    std::vector<PointF> points;
};

std::vector<PointF> cut(PointF from, PointF to) {
    std::vector<PointF> points;
    subdivideSegment(points, from.x, from.y, to.x, to.y, 1);
    return points;
}

class Subdivide : public testing::TestWithParam<Row> {};

TEST_P(Subdivide, GivesThePointsWorkedOutByHand) {
    const Row& row = GetParam();
    const std::vector<PointF> points = cut(row.from, row.to);
    ASSERT_EQ(points.size(), row.points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        expectNear(points[i], row.points[i], 0.0001);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Subdivide,
    testing::Values(
        Row{"Right", {0, 7}, {12, 7}, {{0, 7}, {5, 7}, {10, 7}, {12, 7}}},
        Row{"Left", {20, 7}, {8, 7}, {{20, 7}, {15, 7}, {10, 7}, {8, 7}}},
        Row{"Down", {7, 0}, {7, 12}, {{7, 0}, {7, 5}, {7, 10}, {7, 12}}},
        Row{"Up", {7, 20}, {7, 8}, {{7, 20}, {7, 15}, {7, 10}, {7, 8}}},
        Row{"MultipleOfFiveHasNoExtraEnd", {0, 0}, {15, 0}, {{0, 0}, {5, 0}, {10, 0}, {15, 0}}},
        Row{"ThreePixelsAreTheTwoEnds", {10, 10}, {13, 10}, {{10, 10}, {13, 10}}},
        Row{"NoLengthIsOnePoint", {10, 10}, {10, 10}, {{10, 10}}},
        Row{"AxisLengthIsRoundedUp", {0, 0}, {4.7F, 0}, {{0, 0}, {5, 0}}},
        Row{"AxisHalfRoundsToEven", {0, 0}, {0, 2.5F}, {{0, 0}, {0, 2.5F}}},
        Row{"AxisBelowHalfIsOnePoint", {0, 0}, {0.4F, 0}, {{0, 0}}},
        Row{"DiagonalDownRight", {0, 0}, {7.2F, 9.6F}, {{0, 0}, {3, 4}, {6, 8}, {7.2F, 9.6F}}},
        Row{"DiagonalUpRight", {0, 10}, {7.2F, 0.4F}, {{0, 10}, {3, 6}, {6, 2}, {7.2F, 0.4F}}},
        Row{"DiagonalDownLeft", {10, 0}, {2.8F, 9.6F}, {{10, 0}, {7, 4}, {4, 8}, {2.8F, 9.6F}}},
        Row{"DiagonalUpLeft", {10, 10}, {2.8F, 0.4F}, {{10, 10}, {7, 6}, {4, 2}, {2.8F, 0.4F}}},
        Row{"DiagonalMultipleOfFive", {0, 0}, {9, 12}, {{0, 0}, {3, 4}, {6, 8}, {9, 12}}},
        Row{"DiagonalCountIsOfTheExactLengthRestOfTheRounded", {0, 0}, {5.82F, 7.76F}, {{0, 0}, {3, 4}}},
        Row{"DiagonalALittleLongHasNoRest", {0, 0}, {6.24F, 8.32F}, {{0, 0}, {3, 4}, {6, 8}}},
        Row{"DiagonalShorterThanAPitch", {0, 0}, {2.4F, 3.2F}, {{0, 0}, {2.4F, 3.2F}}},
        Row{"DiagonalThatRoundsToAPitchIsOnePoint", {0, 0}, {2.82F, 3.76F}, {{0, 0}}}),
    [](const testing::TestParamInfo<Row>& param) { return param.param.name; });

TEST(SubdivideSegment, EndsExactlyAtTheEndPointOfARest) {
    const std::vector<PointF> points = cut({1.3F, 2.7F}, {100.1F, 57.9F});
    EXPECT_EQ(points.back(), (PointF{100.1F, 57.9F}));
}

TEST(SubdivideSegment, DoesNothingForAnotherUnit) {
    std::vector<PointF> points{{1, 2}};
    for (const int unit : {0, 2, -1}) {
        subdivideSegment(points, 0, 0, 50, 0, unit);
        EXPECT_EQ(points, (std::vector<PointF>{{1, 2}}));
    }
}

TEST(SubdivideSegment, GivesOnlyThePointsOfTheWindow) {
    std::vector<PointF> points;
    subdivideSegment(points, 0, 0, 52, 0, 1, {2, 4});
    EXPECT_EQ(points, (std::vector<PointF>{{10, 0}, {15, 0}, {20, 0}}));
    subdivideSegment(points, 0, 0, 52, 0, 1, {10, 99});
    EXPECT_EQ(points, (std::vector<PointF>{{50, 0}, {52, 0}}));
    subdivideSegment(points, 0, 0, 52, 0, 1, {0, -1});
    EXPECT_TRUE(points.empty());
}

TEST(PitchUpperBound, CountsWithoutMakingThePoints) {
    EXPECT_EQ(pitchUpperBound(0, 0, 0, 0), 0);
    EXPECT_EQ(pitchUpperBound(0, 0, 12, 0), 3);
    EXPECT_EQ(pitchUpperBound(0, 0, 15, 0), 3);
    EXPECT_EQ(pitchUpperBound(0, 0, 1e9F, 0), 200000000);
    EXPECT_EQ(pitchUpperBound(0, 0, std::numeric_limits<float>::infinity(), 0), 0);
    EXPECT_EQ(pitchUpperBound(0, 0, std::numeric_limits<float>::quiet_NaN(), 5), 0);
}

TEST(VisiblePitches, AreAllOfALineInTheBox) {
    EXPECT_EQ(visiblePitches(10, 10, 62, 10, kBoard), (PitchWindow{0, 11}));
    EXPECT_EQ(visiblePitches(10, 10, 62, 10, ClipBox{}), (PitchWindow{0, 11}));
}

TEST(VisiblePitches, AreNoneOfALineBesideTheBox) {
    const PitchWindow window = visiblePitches(-500, 900, 1e9F, 900, kBoard);
    EXPECT_LT(window.last, window.first);
    const PitchWindow behind = visiblePitches(800, 100, 1e9F, 100, kBoard);
    EXPECT_LT(behind.last, behind.first);
}

TEST(VisiblePitches, OfAFarLineAreTheFewThatShow) {
    const PitchWindow leaving = visiblePitches(100, 100, 1e9F, 100, kBoard);
    EXPECT_EQ(leaving.first, 0);
    EXPECT_GE(leaving.last, (363 - 100) / 5);
    EXPECT_LE(leaving.last, (363 - 100) / 5 + 3);
    const PitchWindow coming = visiblePitches(-1e9F, 100, 100, 100, kBoard);
    EXPECT_LE(coming.last - coming.first, 100 / 5 + 30);
    EXPECT_EQ(coming.last, pitchUpperBound(-1e9F, 100, 100, 100));
}

} // namespace
} // namespace zeltrona::render
