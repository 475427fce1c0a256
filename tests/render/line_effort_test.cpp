// What the lines of a play may cost is bounded by the number of their points; no play that a hand draws
// comes near the bound.

#include "render/bezier_path.h"
#include "render/pen.h"
#include "tests/render/canvas.h"
#include "tests/render/line_fixtures.h"

#include <array>
#include <random>

namespace zeltrona::render {
namespace {

using document::LineRec;
using document::PointF;

std::size_t pointsOf(const std::vector<LineRec>& lines) {
    std::size_t points = 0;
    for (const LineRec& line : lines) {
        points += line.pts.size();
    }
    return points;
}

LineDrawing paintedWithinItsShare(const Painting& p) {
    LineDrawing out;
    out.effort = LineEffort::forPoints(pointsOf(p.lines));
    drawPaths(out, {p.lines, p.lineWidth, p.editLineIndex, p.box}, p.pointer.x, p.pointer.y);
    return out;
}

/// Lines of 1,500 points that cross the board all the time.
Painting maze(int style, Shape shape, int lines, std::int16_t width) {
    Painting painting;
    painting.lineWidth = width;
    for (int i = 0; i < lines; ++i) {
        std::vector<PointF> pts;
        for (int j = 0; j < 1500; ++j) {
            pts.push_back({j % 2 == 0 ? 1.0F : 360.0F, static_cast<float>(j * 7 % 330)});
        }
        painting.lines.push_back(lineOf(style, shape, std::move(pts)));
    }
    return painting;
}

TEST(LineEffort, GivesWhatIsLeftAndNoMore) {
    LineEffort effort = LineEffort::forPoints(0);
    EXPECT_TRUE(effort.take(30'000'000));
    EXPECT_FALSE(effort.take(11'000'000));
    EXPECT_TRUE(effort.take(10'000'000)) << "what was refused was not taken";
    EXPECT_FALSE(effort.take(1));
}

TEST(LineEffort, GrowsByThePoint) {
    LineEffort effort = LineEffort::forPoints(1000);
    EXPECT_TRUE(effort.take(42'000'000));
    EXPECT_FALSE(effort.take(1));
}

TEST(LineEffort, OfAPlainDrawingHasNoEnd) {
    LineEffort effort;
    EXPECT_TRUE(effort.take(1'000'000'000'000'000));
}

TEST(LineShare, LeavesACrowdedBoardAsItIs) {
    constexpr std::uint32_t kSeed = 4242;
    std::mt19937 random(kSeed);
    std::uniform_real_distribution<float> coordinate(-200, 700);
    Painting painting;
    for (int i = 0; i < 60; ++i) {
        std::vector<PointF> pts;
        for (int j = 0; j < 7; ++j) {
            pts.push_back({coordinate(random), coordinate(random)});
        }
        painting.lines.push_back(lineOf(i % 5, i % 2 == 0 ? Shape::Straight : Shape::Curved, pts));
    }
    for (const std::int16_t width : std::array<std::int16_t, 3>{1, 2, 3}) {
        painting.lineWidth = width;
        EXPECT_EQ(paintedWithinItsShare(painting).primitives, painted(painting).primitives)
            << "seed " << kSeed << " width " << width;
    }
}

/// Curves that swing across the board again and again, of eleven points each.
Painting longCurves(int style, Shape shape, int lines) {
    Painting painting;
    for (int i = 0; i < lines; ++i) {
        std::vector<PointF> pts;
        for (int j = 0; j < 11; ++j) {
            pts.push_back({j % 2 == 0 ? 5.0F : 525.0F, static_cast<float>((i * 31 + j * 29) % 290)});
        }
        painting.lines.push_back(lineOf(style, shape, std::move(pts)));
    }
    painting.box = {0, 0, 532, 295};
    return painting;
}

TEST(LineShare, LeavesFortyLongLinesUnderAnyPenAsTheyAre) {
    for (const Shape shape : {Shape::Straight, Shape::Curved}) {
        for (int style = 0; style <= 4; ++style) {
            Painting painting = longCurves(style, shape, 40);
            for (std::int16_t width = 1; width <= 20; ++width) {
                painting.lineWidth = width;
                EXPECT_EQ(paintedWithinItsShare(painting).primitives, painted(painting).primitives)
                    << (shape == Shape::Curved ? "curved" : "straight") << " style " << style << " width "
                    << width;
            }
        }
    }
}

TEST(LineShare, BoundsTheHalfWavesOfAMaze) {
    for (const std::int16_t width : std::array<std::int16_t, 3>{1, 20, 300}) {
        const Painting painting = maze(2, Shape::Straight, 4, width);
        const LineDrawing drawing = paintedWithinItsShare(painting);
        const auto most = static_cast<std::size_t>((40'000'000 + 2'000 * 6'000) / costOfHalfWave(width));
        EXPECT_LE(allOf<ArcPrimitive>(drawing).size(), most) << width;
        EXPECT_GT(allOf<ArcPrimitive>(drawing).size(), most / 2) << width;
    }
}

TEST(LineShare, TurnsWhatItCannotPayIntoStraightStretches) {
    for (const int style : {1, 2}) {
        const LineDrawing drawing = paintedWithinItsShare(maze(style, Shape::Straight, 4, 300));
        const auto segments = allOf<SegmentPrimitive>(drawing);
        ASSERT_FALSE(segments.empty());
        EXPECT_EQ(segments.back().from, (PointF{1, 1498 * 7 % 330}));
        EXPECT_EQ(segments.back().to, (PointF{360, 1499 * 7 % 330}));
    }
}

TEST(LineShare, TurnsCurvesThatItCannotPayIntoTheirChords) {
    for (const int style : {0, 1, 2, 3}) {
        const LineDrawing drawing = paintedWithinItsShare(maze(style, Shape::Curved, 4, 700));
        EXPECT_EQ(allOf<BezierPrimitive>(drawing).size(), 0U) << style;
        EXPECT_GE(allOf<SegmentPrimitive>(drawing).size(), 3U * 749) << style;
        EXPECT_EQ(allOf<PolygonPrimitive>(drawing).size(), style == 3 ? 0U : 4U) << "every line has its end";
    }
}

TEST(LineShare, EndsTheWalkOutsideTheBoardOnceItIsUsedUp) {
    const std::vector<PointI> far{{0, 0}, {199999, 0}, {0, 300}, {0, 300}};
    std::vector<PointF> whole;
    flattenBezierPath(far, whole, kBoard);
    ASSERT_GT(whole.size(), 30'000U);
    LineEffort effort = LineEffort::forPoints(0);
    ASSERT_TRUE(effort.take(40'000'000 - 1000 * kCostOfUnseenSample));
    std::vector<PointF> cut;
    flattenBezierPath(far, cut, kBoard, &effort);
    EXPECT_LT(cut.size(), 1200U);
    for (std::size_t i = 0; i + 1 < cut.size(); ++i) {
        ASSERT_EQ(cut[i], whole[i]) << i;
    }
}

TEST(WholeStroke, IsToldAndFillsEveryPixel) {
    Canvas canvas(60, 40);
    EXPECT_EQ(strokeWide(canvas.view(), {10, 10}, {50, 30}, {200, Canvas::kBlack}), Stroke::Whole);
    EXPECT_EQ(canvas.count(), 60 * 40);
}

TEST(WholeStroke, IsNoneWhenACornerStaysBare) {
    Canvas canvas(60, 40);
    EXPECT_EQ(strokeWide(canvas.view(), {0, 0}, {30, 0}, {80, Canvas::kBlack}), Stroke::Part);
    EXPECT_LT(canvas.count(), 60 * 40);
    EXPECT_FALSE(canvas.drawn(59, 39)) << canvas.text();
}

} // namespace
} // namespace zeltrona::render
