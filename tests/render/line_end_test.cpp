#include "render/line_end.h"
#include "tests/render/line_fixtures.h"

namespace zeltrona::render {
namespace {

using document::PointF;
using Triangle = std::array<PointI, 3>;

LineDrawing endOf(PointF from, PointF to, int style, std::int16_t lineWidth = 1) {
    LineDrawing out;
    drawLineEnd(out, from.x, from.y, to.x, to.y, {kRed, lineWidth}, style);
    return out;
}

struct ArrowRow {
    const char* name;
    PointF from, to;
    Triangle plain; ///< styles 0, 1, 2 and above 4
    Triangle wide;  ///< style 4 at a line width of 2, so half a width of 5
};

class Arrow : public testing::TestWithParam<ArrowRow> {};

TEST_P(Arrow, StandsAtTheTip) {
    for (const int style : {0, 1, 2, 5, 9}) {
        const auto arrows = allOf<PolygonPrimitive>(endOf(GetParam().from, GetParam().to, style));
        ASSERT_EQ(arrows.size(), 1U);
        EXPECT_EQ(arrows[0].points, GetParam().plain) << "style " << style;
    }
}

TEST_P(Arrow, ReachesOverBothLines) {
    const auto arrows = allOf<PolygonPrimitive>(endOf(GetParam().from, GetParam().to, 4, 2));
    ASSERT_EQ(arrows.size(), 1U);
    EXPECT_EQ(arrows[0].points, GetParam().wide);
}

TEST_P(Arrow, KeepsItsShapeAtAnyLineWidth) {
    const auto arrows = allOf<PolygonPrimitive>(endOf(GetParam().from, GetParam().to, 0, 7));
    EXPECT_EQ(arrows.at(0).points, GetParam().plain);
}

// Diagonals at half a right angle: 6 ahead is 4.243 on either axis; t = 1.57 - 0.785 = 0.785, its cosine
// 0.7077 and sine 0.7065 give 2.123 and 2.120 for half a width of 3, and 3.538 and 3.533 for 5.
INSTANTIATE_TEST_SUITE_P(
    Directions, Arrow,
    testing::Values(
        ArrowRow{
            "Right", {10, 50}, {40, 50}, {{{40, 50}, {34, 53}, {34, 47}}}, {{{43, 52}, {37, 57}, {37, 47}}}},
        ArrowRow{
            "Left", {40, 50}, {10, 50}, {{{10, 50}, {16, 53}, {16, 47}}}, {{{7, 52}, {13, 57}, {13, 47}}}},
        ArrowRow{
            "Down", {50, 10}, {50, 40}, {{{50, 40}, {53, 34}, {47, 34}}}, {{{52, 43}, {57, 37}, {47, 37}}}},
        ArrowRow{"Up", {50, 40}, {50, 10}, {{{50, 10}, {53, 16}, {47, 16}}}, {{{52, 7}, {57, 13}, {47, 13}}}},
        ArrowRow{
            "Nowhere", {10, 50}, {10, 50}, {{{10, 50}, {16, 53}, {16, 47}}}, {{{7, 52}, {13, 57}, {13, 47}}}},
        ArrowRow{"DownRight",
                 {10, 10},
                 {40, 40},
                 {{{40, 40}, {38, 34}, {34, 38}}},
                 {{{44, 44}, {44, 36}, {36, 44}}}},
        ArrowRow{
            "UpLeft", {40, 40}, {10, 10}, {{{10, 10}, {16, 12}, {12, 16}}}, {{{6, 6}, {14, 6}, {6, 14}}}},
        ArrowRow{
            "UpRight", {10, 40}, {40, 10}, {{{40, 10}, {34, 12}, {38, 16}}}, {{{44, 6}, {36, 6}, {44, 14}}}},
        ArrowRow{
            "DownLeft", {40, 10}, {10, 40}, {{{10, 40}, {12, 34}, {16, 38}}}, {{{6, 44}, {6, 36}, {14, 44}}}},
        // 3 across to 4 down: 6 ahead is 3.6 and 4.8, t = 1.57 - 0.9273 = 0.6427.
        ArrowRow{
            "Steep", {0, 0}, {30, 40}, {{{30, 40}, {29, 33}, {24, 37}}}, {{{34, 45}, {34, 37}, {26, 43}}}}),
    [](const testing::TestParamInfo<ArrowRow>& param) { return param.param.name; });

struct BarRow {
    const char* name;
    PointF from, to, a, b;
};

class Bar : public testing::TestWithParam<BarRow> {};

TEST_P(Bar, CrossesTheEndPointAndNothingElse) {
    const LineDrawing out = endOf(GetParam().from, GetParam().to, 3, 2);
    ASSERT_EQ(kindsOf(out), "s");
    const SegmentPrimitive bar = allOf<SegmentPrimitive>(out)[0];
    expectNear(bar.from, GetParam().a);
    expectNear(bar.to, GetParam().b);
    EXPECT_EQ(bar.color, kRed);
}

// 3 to 4: t = 0.6427, 6 times its cosine is 4.8028 and its sine 3.5962.
INSTANTIATE_TEST_SUITE_P(
    Directions, Bar,
    testing::Values(BarRow{"Right", {10, 50}, {40, 50}, {40, 44}, {40, 56}},
                    BarRow{"Left", {40, 50}, {10, 50}, {10, 44}, {10, 56}},
                    BarRow{"Down", {50, 10}, {50, 40}, {44, 40}, {56, 40}},
                    BarRow{"Up", {50, 40}, {50, 10}, {44, 10}, {56, 10}},
                    BarRow{"Nowhere", {10, 50}, {10, 50}, {10, 44}, {10, 56}},
                    BarRow{"DownRight", {0, 0}, {30, 40}, {34.8028F, 36.4038F}, {25.1972F, 43.5962F}},
                    BarRow{"UpLeft", {30, 40}, {0, 0}, {4.8028F, -3.5962F}, {-4.8028F, 3.5962F}},
                    BarRow{"UpRight", {0, 40}, {30, 0}, {25.1972F, -3.5962F}, {34.8028F, 3.5962F}},
                    BarRow{"DownLeft", {30, 0}, {0, 40}, {-4.8028F, 36.4038F}, {4.8028F, 43.5962F}}),
    [](const testing::TestParamInfo<BarRow>& param) { return param.param.name; });

TEST(DrawLineEnd, RoundsItsPointsHalfToEven) {
    const auto arrows = allOf<PolygonPrimitive>(endOf({0, 10.5F}, {40.5F, 10.5F}, 0));
    EXPECT_EQ(arrows.at(0).points, (Triangle{{{40, 10}, {34, 14}, {34, 8}}}));
}

TEST(DrawLineEnd, MovesABaseThatWouldStandOverTheStart) {
    // 6 back from the tip lands on x1 to the nearest single, so the base goes one to the right of it.
    const auto arrows = allOf<PolygonPrimitive>(endOf({1000000, 0}, {1000003.625F, 4.781F}, 0));
    EXPECT_EQ(arrows.at(0).points, (Triangle{{{1000004, 5}, {1000003, -2}, {999999, 2}}}));
}

TEST(DrawLineEnd, WidensADoubleLinesArrowWithTheLineWidth) {
    const auto arrows = allOf<PolygonPrimitive>(endOf({10, 50}, {40, 50}, 4, 1));
    EXPECT_EQ(arrows.at(0).points, (Triangle{{{43, 51}, {37, 55}, {37, 47}}}));
}

TEST(DrawLineEnd, PaintsOutlineAndInsideInTheLinesColourWithThePenAsItIs) {
    LineDrawing out;
    out.pen = {3, 11, 22, FillStyle::Transparent, DrawStyle::Solid};
    drawLineEnd(out, 10, 50, 40, 50, {kRed, 1}, 0);
    const PolygonPrimitive arrow = allOf<PolygonPrimitive>(out).at(0);
    EXPECT_EQ(arrow.width, 3);
    EXPECT_EQ(arrow.color, kRed);
    EXPECT_EQ(arrow.fill, kRed);
}

TEST(DrawLineEnd, PutsForeColorAndFillStyleBackAndLeavesTheFillColour) {
    for (const int style : {0, 3, 4}) {
        LineDrawing out;
        out.pen = {3, 11, 22, FillStyle::Transparent, DrawStyle::Solid};
        drawLineEnd(out, 10, 50, 40, 50, {kRed, 1}, style);
        EXPECT_EQ(out.pen, (LinePen{3, 11, kRed, FillStyle::Transparent, DrawStyle::Solid}));
    }
}

} // namespace
} // namespace zeltrona::render
