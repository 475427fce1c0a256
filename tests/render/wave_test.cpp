#include "render/wave.h"
#include "tests/render/line_fixtures.h"

#include <cmath>
#include <cstdlib>

namespace zeltrona::render {
namespace {

using document::PointF;

/// Slope of the pairs below: 3 across, 4 down or up, so the angle is atn(4 / 3).
const double kSlope = std::atan(4.0 / 3.0);

struct Row {
    const char* name;
    PointF p, q;
    double start, end; ///< with the flag off
};

class WaveTable : public testing::TestWithParam<Row> {};

TEST_P(WaveTable, GivesItsAnglesWithTheFlagOff) {
    const ArcPrimitive arc = waveArc(GetParam().p, GetParam().q, PitchFlag::Off);
    EXPECT_DOUBLE_EQ(arc.start, GetParam().start);
    EXPECT_DOUBLE_EQ(arc.end, GetParam().end);
}

TEST_P(WaveTable, SwapsThemWithTheFlagOn) {
    const ArcPrimitive arc = waveArc(GetParam().p, GetParam().q, PitchFlag::On);
    EXPECT_DOUBLE_EQ(arc.start, GetParam().end);
    EXPECT_DOUBLE_EQ(arc.end, GetParam().start);
}

TEST_P(WaveTable, StandsOnTheMiddleWithHalfTheLength) {
    const auto& [name, p, q, start, end] = GetParam();
    const ArcPrimitive arc = waveArc(p, q, PitchFlag::Off);
    EXPECT_EQ(arc.centre, (PointF{(p.x + q.x) / 2, (p.y + q.y) / 2}));
    EXPECT_DOUBLE_EQ(arc.radius, 2.5);
}

INSTANTIATE_TEST_SUITE_P(Rows, WaveTable,
                         testing::Values(Row{"Down", {10, 20}, {10, 25}, 4.7115, 1.5705},
                                         Row{"Up", {10, 20}, {10, 15}, 4.7115, 1.5705},
                                         Row{"Right", {10, 20}, {15, 20}, 0, 3.141},
                                         Row{"Left", {10, 20}, {5, 20}, 0, 3.141},
                                         Row{"BothGrow", {10, 20}, {13, 24}, 6.282 - kSlope, 3.141 - kSlope},
                                         Row{"BothShrink", {10, 20}, {7, 16}, 6.282 - kSlope, 3.141 - kSlope},
                                         Row{"RightAndUp", {10, 20}, {13, 16}, kSlope + 3.141, kSlope},
                                         Row{"LeftAndDown", {10, 20}, {7, 24}, kSlope + 3.141, kSlope}),
                         [](const testing::TestParamInfo<Row>& param) { return param.param.name; });

TEST(WaveArc, OverEqualPointsHasNoRadiusAndTheUprightAngles) {
    const ArcPrimitive arc = waveArc({10, 20}, {10, 20}, PitchFlag::Off);
    EXPECT_EQ(arc.radius, 0);
    EXPECT_DOUBLE_EQ(arc.start, 9.423 / 2);
}

LineDrawing withWidth(int width) {
    LineDrawing out;
    out.pen.drawWidth = width;
    return out;
}

TEST(AddWave, ChangesSideAtEveryStretch) {
    LineDrawing out = withWidth(2);
    const std::vector<PointF> points{{0, 0}, {5, 0}, {10, 0}, {15, 0}};
    addWave(out, points, PitchFlag::Off, {}, kRed);
    const auto arcs = allOf<ArcPrimitive>(out);
    ASSERT_EQ(arcs.size(), 3U);
    EXPECT_EQ(arcs[0], (ArcPrimitive{{2.5F, 0}, 2.5, 0, 3.141, 2, kRed}));
    EXPECT_EQ(arcs[1], (ArcPrimitive{{7.5F, 0}, 2.5, 3.141, 0, 2, kRed}));
    EXPECT_EQ(arcs[2], (ArcPrimitive{{12.5F, 0}, 2.5, 0, 3.141, 2, kRed}));
}

TEST(AddWave, BeginsOnTheOtherSideWithTheFlagOn) {
    LineDrawing out;
    const std::vector<PointF> points{{0, 0}, {5, 0}};
    addWave(out, points, PitchFlag::On, {}, kRed);
    EXPECT_EQ(allOf<ArcPrimitive>(out).at(0).start, 3.141);
}

TEST(AddWave, CountsStretchesOutsideTheBox) {
    LineDrawing out;
    const std::vector<PointF> points{{-5, 10}, {-1, 10}, {4, 10}};
    addWave(out, points, PitchFlag::Off, kBoard, kRed);
    ASSERT_EQ(out.primitives.size(), 1U);
    EXPECT_EQ(allOf<ArcPrimitive>(out)[0].start, 3.141);
}

TEST(AddDashes, PaintsEveryOtherStretch) {
    LineDrawing out = withWidth(3);
    const std::vector<PointF> points{{0, 0}, {5, 0}, {10, 0}, {15, 0}, {20, 0}};
    addDashes(out, points, PitchFlag::Off, {}, kRed);
    const auto dashes = allOf<SegmentPrimitive>(out);
    ASSERT_EQ(dashes.size(), 2U);
    EXPECT_EQ(dashes[0], (SegmentPrimitive{{0, 0}, {5, 0}, 3, kRed}));
    EXPECT_EQ(dashes[1], (SegmentPrimitive{{10, 0}, {15, 0}, 3, kRed}));
}

TEST(AddDashes, BeginsWithAGapWhenTheFlagIsOn) {
    LineDrawing out;
    const std::vector<PointF> points{{0, 0}, {5, 0}, {10, 0}};
    addDashes(out, points, PitchFlag::On, {}, kRed);
    ASSERT_EQ(out.primitives.size(), 1U);
    EXPECT_EQ(allOf<SegmentPrimitive>(out)[0].from, (PointF{5, 0}));
}

TEST(AddDashes, OfOnePointOrNoneAreNone) {
    LineDrawing out;
    addDashes(out, std::vector<PointF>{}, PitchFlag::Off, {}, kRed);
    addDashes(out, std::vector<PointF>{{1, 1}}, PitchFlag::Off, {}, kRed);
    addWave(out, std::vector<PointF>{{1, 1}}, PitchFlag::Off, {}, kRed);
    EXPECT_TRUE(out.primitives.empty());
}

} // namespace
} // namespace zeltrona::render
