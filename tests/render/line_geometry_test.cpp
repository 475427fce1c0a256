#include "tests/render/line_fixtures.h"

namespace zeltrona::render {
namespace {

using document::PointF;

const LinePen kPen{7, 11, 22, FillStyle::Transparent, DrawStyle::Solid};

std::vector<PointI> arrowAt(const LineDrawing& drawing) {
    const PolygonPrimitive arrow = allOf<PolygonPrimitive>(drawing).at(0);
    return {arrow.points.begin(), arrow.points.end()};
}

// ---- Straight lines

TEST(StraightLine, IsABodyAndAnEndInTheOrderOfItsStyle) {
    const auto kinds = [](int style) {
        return kindsOf(painted({.lines = {lineOf(style, Shape::Straight, {{10, 10}, {30, 10}})}}));
    };
    EXPECT_EQ(kinds(0), "sp");
    EXPECT_EQ(kinds(1), "ssp");
    EXPECT_EQ(kinds(2), "aaaap");
    EXPECT_EQ(kinds(3), "ss");
    EXPECT_EQ(kinds(4), "ssp");
    EXPECT_EQ(kinds(5), "sp");
    EXPECT_EQ(kinds(255), "sp");
}

TEST(StraightLine, HasItsEndOnTheLastSegmentAlone) {
    const LineDrawing drawing =
        painted({.lines = {lineOf(0, Shape::Straight, {{10, 10}, {40, 10}, {40, 60}, {90, 60}})}});
    EXPECT_EQ(kindsOf(drawing), "sssp");
    EXPECT_EQ(arrowAt(drawing), (std::vector<PointI>{{90, 60}, {84, 63}, {84, 57}}));
}

TEST(StraightLine, GivesEachPrimitiveTheLinesColourAndWidth) {
    for (int style = 0; style <= 4; ++style) {
        const LineDrawing drawing =
            painted({.lines = {lineOf(style, Shape::Straight, {{10, 10}, {30, 10}})}, .lineWidth = 3}, kPen);
        for (const LinePrimitive& primitive : drawing.primitives) {
            EXPECT_EQ(std::visit([](const auto& p) { return p.width; }, primitive), 3);
            EXPECT_EQ(std::visit([](const auto& p) { return p.color; }, primitive), kRed);
        }
    }
}

TEST(StraightLine, PutsTheDrawWidthBackAndLeavesTheColourOfItsEndAsFill) {
    for (int style = 0; style <= 4; ++style) {
        const LineDrawing drawing =
            painted({.lines = {lineOf(style, Shape::Straight, {{10, 10}, {30, 10}})}, .lineWidth = 3}, kPen);
        EXPECT_EQ(drawing.pen, (LinePen{7, 11, kRed, FillStyle::Transparent, DrawStyle::Solid}));
    }
}

TEST(StraightLine, OfOnePointShowsNothing) {
    for (int style = 0; style <= 5; ++style) {
        const LineDrawing drawing = painted({.lines = {lineOf(style, Shape::Straight, {{10, 10}})}}, kPen);
        EXPECT_TRUE(drawing.primitives.empty());
        EXPECT_EQ(drawing.pen, kPen);
    }
}

TEST(StraightLine, WithoutPointsShowsNothing) {
    for (const Shape shape : {Shape::Straight, Shape::Curved}) {
        for (const std::int16_t edited : {std::int16_t{-1}, std::int16_t{0}}) {
            const LineDrawing drawing =
                painted({.lines = {lineOf(1, shape, {})}, .editLineIndex = edited, .pointer = {9, 9}}, kPen);
            EXPECT_TRUE(drawing.primitives.empty());
            EXPECT_EQ(drawing.pen, kPen);
        }
    }
}

TEST(StraightLine, CannotGiveThePenAWidthBelowOne) {
    const LineDrawing drawing =
        painted({.lines = {lineOf(0, Shape::Straight, {{10, 10}, {30, 10}})}, .lineWidth = -1}, kPen);
    EXPECT_EQ(allOf<SegmentPrimitive>(drawing).at(0).width, 7);
}

TEST(DashedLine, OfThreePixelsIsOneDash) {
    const LineDrawing drawing = painted({.lines = {lineOf(1, Shape::Straight, {{10, 10}, {13, 10}})}});
    EXPECT_EQ(kindsOf(drawing), "sp");
    EXPECT_EQ(allOf<SegmentPrimitive>(drawing)[0], (SegmentPrimitive{{10, 10}, {13, 10}, 1, kRed}));
}

TEST(DashedLine, OfNoLengthShowsNothingAndLeavesTheDrawWidth) {
    const LineDrawing drawing =
        painted({.lines = {lineOf(1, Shape::Straight, {{10, 10}, {10, 10}})}, .lineWidth = 3}, kPen);
    EXPECT_TRUE(drawing.primitives.empty());
    EXPECT_EQ(drawing.pen, (LinePen{3, 11, 22, FillStyle::Transparent, DrawStyle::Solid}));
}

TEST(DashedLine, PaintsTheSegmentsAroundOneOfNoLength) {
    const LineDrawing drawing = painted(
        {.lines = {lineOf(1, Shape::Straight, {{10, 10}, {20, 10}, {20, 10}, {30, 10}})}, .lineWidth = 3},
        kPen);
    EXPECT_EQ(kindsOf(drawing), "ssp");
    // The segment behind finds the width that the one of no length left, and puts that back.
    EXPECT_EQ(drawing.pen.drawWidth, 3);
}

TEST(WavyLine, OfNoLengthHasItsEndAlone) {
    const LineDrawing drawing =
        painted({.lines = {lineOf(2, Shape::Straight, {{10, 10}, {10, 10}})}, .lineWidth = 3}, kPen);
    EXPECT_EQ(kindsOf(drawing), "p");
    EXPECT_EQ(arrowAt(drawing), (std::vector<PointI>{{10, 10}, {16, 13}, {16, 7}}));
    EXPECT_EQ(drawing.pen.drawWidth, 7);
}

TEST(WavyLine, BeginsEachSegmentOnTheSameSide) {
    const LineDrawing drawing =
        painted({.lines = {lineOf(2, Shape::Straight, {{10, 10}, {25, 10}, {40, 10}})}});
    const auto arcs = allOf<ArcPrimitive>(drawing);
    ASSERT_EQ(arcs.size(), 6U);
    EXPECT_EQ(arcs[2].start, 0);
    EXPECT_EQ(arcs[3].start, 0);
}

struct TwinRow {
    const char* name;
    PointF from, to, twinFrom, twinTo;
};
class DoubleLine : public testing::TestWithParam<TwinRow> {};

TEST_P(DoubleLine, HasItsTwinBesideIt) {
    const auto& [name, from, to, twinFrom, twinTo] = GetParam();
    const LineDrawing drawing = painted({.lines = {lineOf(4, Shape::Straight, {from, to})}, .lineWidth = 2});
    const auto segments = allOf<SegmentPrimitive>(drawing);
    ASSERT_EQ(segments.size(), 2U);
    EXPECT_EQ(segments[0], (SegmentPrimitive{from, to, 2, kRed}));
    expectNear(segments[1].from, twinFrom);
    expectNear(segments[1].to, twinTo);
}

// A distance of 3. At 3 across to 4 down t = 1.57 - 0.9273 = 0.6427: 3 times its cosine is 2.4014, its
// sine 1.7981.
INSTANTIATE_TEST_SUITE_P(
    Directions, DoubleLine,
    testing::Values(TwinRow{"Right", {10, 50}, {40, 50}, {10, 53}, {40, 53}},
                    TwinRow{"Left", {40, 50}, {10, 50}, {40, 53}, {10, 53}},
                    TwinRow{"Down", {50, 10}, {50, 40}, {53, 10}, {53, 40}},
                    TwinRow{"Up", {50, 40}, {50, 10}, {53, 40}, {53, 10}},
                    TwinRow{"NowhereTakesTheFirstRule", {10, 50}, {10, 50}, {10, 53}, {10, 53}},
                    TwinRow{"DownRight", {0, 0}, {30, 40}, {-2.4014F, 1.7981F}, {27.5986F, 41.7981F}},
                    TwinRow{"UpLeft", {30, 40}, {0, 0}, {27.5986F, 41.7981F}, {-2.4014F, 1.7981F}},
                    TwinRow{"UpRight", {0, 40}, {30, 0}, {2.4014F, 41.7981F}, {32.4014F, 1.7981F}},
                    TwinRow{"DownLeft", {30, 0}, {0, 40}, {32.4014F, 1.7981F}, {2.4014F, 41.7981F}}),
    [](const testing::TestParamInfo<TwinRow>& param) { return param.param.name; });

TEST(DoubleLineWidth, OfOneIsTwoPixelsApart) {
    const LineDrawing drawing = painted({.lines = {lineOf(4, Shape::Straight, {{10, 50}, {40, 50}})}});
    EXPECT_EQ(allOf<SegmentPrimitive>(drawing).at(1).from, (PointF{10, 52}));
}

// ---- All lines of a frame

TEST(DrawPaths, PaintsNothingWithoutLines) {
    const LineDrawing drawing =
        painted({.lines = {lineOf(0, Shape::Straight, {{0, 1000}}, 0)}, .pointer = {5, 5}});
    EXPECT_TRUE(drawing.primitives.empty());
}

TEST(DrawPaths, PaintsTheLinesInTheirOrder) {
    const LineDrawing drawing =
        painted({.lines = {lineOf(0, Shape::Straight, {{10, 10}, {30, 10}}, 1),
                           lineOf(3, Shape::Curved, {{10, 10}, {30, 10}, {40, 60}}, 2),
                           lineOf(4, Shape::Straight, {{10, 10}, {30, 10}}, 3)}});
    EXPECT_EQ(kindsOf(drawing), "spbsssp");
    EXPECT_EQ(allOf<BezierPrimitive>(drawing).at(0).color, 2);
}

TEST(DrawPaths, IgnoresThePointerWhenNoLineIsUnderConstruction) {
    Painting still{.lines = {lineOf(0, Shape::Straight, {{10, 10}, {30, 10}}),
                             lineOf(1, Shape::Curved, {{10, 10}, {30, 10}, {40, 60}})}};
    Painting pointed = still;
    pointed.pointer = {200, 200};
    EXPECT_EQ(painted(still).primitives, painted(pointed).primitives);
}

TEST(DrawPaths, WalksALineOfThreeThousandPoints) {
    std::vector<PointF> pts;
    for (int i = 0; i < 3000; ++i) {
        pts.push_back({static_cast<float>(10 + i % 300), static_cast<float>(10 + (i * 7) % 290)});
    }
    EXPECT_EQ(painted({.lines = {lineOf(0, Shape::Straight, pts)}}).primitives.size(), 3000U);
    const auto bezier = allOf<BezierPrimitive>(painted({.lines = {lineOf(0, Shape::Curved, pts)}}));
    EXPECT_EQ(bezier.at(0).points.size(), 1U + 3 * 1499 + 3); // 2999 steps: 1499 triples and a rest
}

} // namespace
} // namespace zeltrona::render
