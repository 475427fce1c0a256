#include "tests/render/line_fixtures.h"

namespace zeltrona::render {
namespace {

using document::PointF;
using Bezier = std::vector<PointI>;

const LinePen kPen{7, 11, 22, FillStyle::Transparent, DrawStyle::Solid};

Painting curve(int style, std::vector<PointF> pts, std::int16_t lineWidth = 1) {
    return {.lines = {lineOf(style, Shape::Curved, std::move(pts))}, .lineWidth = lineWidth};
}

Painting growing(Painting painting, PointF pointer) {
    painting.editLineIndex = 0;
    painting.pointer = pointer;
    return painting;
}

Bezier bezierOf(const Painting& painting) {
    return allOf<BezierPrimitive>(painted(painting)).at(0).points;
}

PolygonPrimitive arrowOf(const Painting& painting) {
    return allOf<PolygonPrimitive>(painted(painting)).at(0);
}

TEST(CurvedLine, TakesItsPointsInThrees) {
    EXPECT_EQ(bezierOf(curve(0, {{10, 10}, {50, 10}, {50, 50}, {50, 90}, {90, 90}})),
              (Bezier{{10, 10}, {50, 10}, {50, 10}, {50, 50}, {50, 90}, {50, 90}, {90, 90}}));
}

TEST(CurvedLine, RoundsItsPointsHalfToEven) {
    EXPECT_EQ(bezierOf(curve(0, {{10.5F, 11.5F}, {50.5F, 9.49F}, {50.51F, -0.5F}})),
              (Bezier{{10, 12}, {50, 9}, {50, 9}, {51, 0}}));
}

TEST(CurvedLine, OfTwoPointsIsStraightWithAnArrowToTheLeft) {
    const Painting painting = curve(0, {{10, 10}, {90, 40}});
    EXPECT_EQ(bezierOf(painting), (Bezier{{10, 10}, {90, 40}, {90, 40}, {90, 40}}));
    EXPECT_EQ(arrowOf(painting).points, (std::array<PointI, 3>{{{90, 40}, {96, 43}, {96, 37}}}));
}

TEST(CurvedLine, OfOnePointShowsNothingAndLeavesThePenAsItSetIt) {
    for (int style = 0; style <= 5; ++style) {
        const LineDrawing drawing = painted(curve(style, {{10, 10}}, 3), kPen);
        EXPECT_TRUE(drawing.primitives.empty());
        EXPECT_EQ(drawing.pen, (LinePen{3, kRed, 22, FillStyle::Transparent, DrawStyle::Solid}));
    }
}

TEST(CurvedLine, WithARestEndsInAStraightStretchAndAnArrowToTheLeft) {
    const Painting painting = curve(0, {{10, 10}, {50, 10}, {50, 50}, {90, 90}});
    EXPECT_EQ(bezierOf(painting),
              (Bezier{{10, 10}, {50, 10}, {50, 10}, {50, 50}, {90, 90}, {90, 90}, {90, 90}}));
    EXPECT_EQ(arrowOf(painting).points, (std::array<PointI, 3>{{{90, 90}, {96, 93}, {96, 87}}}));
}

TEST(CurvedLine, WithARestAndABarHasItUpright) {
    const LineDrawing drawing = painted(curve(3, {{10, 10}, {50, 10}, {50, 50}, {90, 90}}));
    EXPECT_EQ(kindsOf(drawing), "bs");
    EXPECT_EQ(allOf<SegmentPrimitive>(drawing)[0], (SegmentPrimitive{{90, 84}, {90, 96}, 1, kRed}));
}

TEST(CurvedLine, PointsItsArrowAlongItsLastControlPoint) {
    EXPECT_EQ(arrowOf(curve(0, {{10, 10}, {50, 10}, {50, 50}})).points,
              (std::array<PointI, 3>{{{50, 50}, {53, 44}, {47, 44}}}));
}

TEST(CurvedLine, IsABodyAndAnEndInTheOrderOfItsStyle) {
    const std::vector<PointF> pts{{10, 10}, {50, 10}, {50, 50}};
    EXPECT_EQ(kindsOf(painted(curve(0, pts))), "bp");
    EXPECT_EQ(kindsOf(painted(curve(3, pts))), "bs");
    EXPECT_EQ(kindsOf(painted(curve(4, pts))), "bbp");
    EXPECT_EQ(kindsOf(painted(curve(5, pts))), "p");
    EXPECT_EQ(kindsOf(painted(curve(1, pts))).find_first_not_of('s'),
              kindsOf(painted(curve(1, pts))).size() - 1);
    EXPECT_EQ(kindsOf(painted(curve(2, pts))).find_first_not_of('a'),
              kindsOf(painted(curve(2, pts))).size() - 1);
    EXPECT_EQ(kindsOf(painted(curve(2, pts))).back(), 'p');
}

TEST(CurvedLine, OfDashesHasOneForEveryOtherSample) {
    // Level at an even speed: samples at 4.86, 9.72 and so on, 18 of them, then 90.
    const LineDrawing drawing = painted(curve(1, {{0, 50}, {45, 50}, {90, 50}}));
    const auto dashes = allOf<SegmentPrimitive>(drawing);
    ASSERT_GE(dashes.size(), 9U);
    EXPECT_EQ(dashes[0].from, (PointF{0, 50}));
    for (std::size_t i = 0; i + 1 < dashes.size(); ++i) {
        EXPECT_GT(dashes[i + 1].from.x - dashes[i].to.x, 4.7F);
        EXPECT_LT(dashes[i + 1].from.x - dashes[i].to.x, 5.2F);
    }
}

TEST(CurvedLine, HasItsTwinShiftedByTheOctant) {
    const auto curves = allOf<BezierPrimitive>(painted(curve(4, {{10, 10}, {50, 10}, {50, 50}}, 2)));
    ASSERT_EQ(curves.size(), 2U);
    EXPECT_EQ(curves[1].points, (Bezier{{10, 7}, {50, 7}, {50, 7}, {47, 50}}));
}

TEST(CurvedLine, PutsThePenBack) {
    for (int style = 0; style <= 5; ++style) {
        const LineDrawing drawing = painted(curve(style, {{10, 10}, {50, 10}, {50, 50}}, 3), kPen);
        EXPECT_EQ(drawing.pen, (LinePen{7, 11, kRed, FillStyle::Transparent, DrawStyle::Solid}));
        for (const LinePrimitive& primitive : drawing.primitives) {
            EXPECT_EQ(std::visit([](const auto& p) { return p.width; }, primitive), 3);
            EXPECT_EQ(std::visit([](const auto& p) { return p.color; }, primitive), kRed);
        }
    }
}

// ---- Under construction

TEST(GrowingCurve, OfOnePointIsPulledByThePointer) {
    EXPECT_EQ(bezierOf(growing(curve(0, {{10, 10}}), {70, 80})),
              (Bezier{{10, 10}, {70, 80}, {70, 80}, {70, 80}}));
}

TEST(GrowingCurve, OfTwoPointsIsPulledByTheSecond) {
    const Painting painting = growing(curve(0, {{10, 10}, {70, 10}}), {70, 80});
    EXPECT_EQ(bezierOf(painting), (Bezier{{10, 10}, {70, 10}, {70, 10}, {70, 80}}));
    EXPECT_EQ(arrowOf(painting).points, (std::array<PointI, 3>{{{70, 80}, {73, 74}, {67, 74}}}));
}

TEST(GrowingCurve, OfWholeTriplesRunsStraightToThePointer) {
    EXPECT_EQ(bezierOf(growing(curve(0, {{10, 10}, {50, 10}, {50, 50}}), {70, 80})),
              (Bezier{{10, 10}, {50, 10}, {50, 10}, {50, 50}, {70, 80}, {70, 80}, {70, 80}}));
}

TEST(GrowingCurve, WithARestIsPulledByItsLastPoint) {
    EXPECT_EQ(bezierOf(growing(curve(0, {{10, 10}, {50, 10}, {50, 50}, {60, 60}}), {70, 80})),
              (Bezier{{10, 10}, {50, 10}, {50, 10}, {50, 50}, {60, 60}, {60, 60}, {70, 80}}));
}

TEST(GrowingCurve, ReachesThePointerAtTheOrigin) {
    EXPECT_EQ(bezierOf(growing(curve(0, {{10, 10}}), {0, 0})).back(), (PointI{0, 0}));
}

TEST(GrowingLine, HasItsEndAtThePointerOnly) {
    const LineDrawing drawing =
        painted(growing({.lines = {lineOf(0, Shape::Straight, {{10, 10}, {40, 10}, {40, 60}})}}, {90, 60}));
    EXPECT_EQ(kindsOf(drawing), "sssp");
    EXPECT_EQ(allOf<SegmentPrimitive>(drawing)[2], (SegmentPrimitive{{40, 60}, {90, 60}, 1, kRed}));
    EXPECT_EQ(allOf<PolygonPrimitive>(drawing)[0].points[0], (PointI{90, 60}));
}

TEST(GrowingLine, OfOnePointIsTheBandAlone) {
    const Painting painting = growing({.lines = {lineOf(3, Shape::Straight, {{10, 10}})}}, {0, 0});
    const auto segments = allOf<SegmentPrimitive>(painted(painting));
    ASSERT_EQ(segments.size(), 2U);
    EXPECT_EQ(segments[0], (SegmentPrimitive{{10, 10}, {0, 0}, 1, kRed}));
}

TEST(GrowingLine, LeavesTheOtherLinesFinished) {
    Painting painting{.lines = {lineOf(0, Shape::Straight, {{10, 10}, {40, 10}}),
                                lineOf(0, Shape::Straight, {{10, 90}, {40, 90}})}};
    painting.editLineIndex = 1;
    painting.pointer = {200, 200};
    const auto arrows = allOf<PolygonPrimitive>(painted(painting));
    ASSERT_EQ(arrows.size(), 2U);
    EXPECT_EQ(arrows[0].points[0], (PointI{40, 10}));
    EXPECT_EQ(arrows[1].points[0], (PointI{200, 200}));
}

} // namespace
} // namespace zeltrona::render
