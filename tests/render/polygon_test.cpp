#include "render/polygon.h"
#include "tests/render/canvas.h"

#include <array>
#include <gtest/gtest.h>
#include <limits>

namespace zeltrona::render {
namespace {

Pen black(int width) {
    return {width, Canvas::kBlack};
}

TEST(Polygon, ArrowheadCloses) {
    Canvas canvas(9, 9);
    const std::array<PointI, 3> arrow{{{7, 4}, {1, 7}, {1, 1}}};
    drawPolygon(canvas.view(), arrow, black(1), Canvas::kBlack);
    EXPECT_EQ(canvas.text(), R"(
.........
.##......
.####....
.#####...
.#######.
.#####...
.####....
.##......
.........
)");
}

TEST(Polygon, WithoutAnInsideIsItsOutline) {
    Canvas canvas(7, 6);
    const std::array<PointI, 4> box{{{1, 1}, {5, 1}, {5, 4}, {1, 4}}};
    drawPolygon(canvas.view(), box, black(1), std::nullopt);
    EXPECT_EQ(canvas.text(), R"(
.......
.#####.
.#...#.
.#...#.
.#####.
.......
)");
}

TEST(Polygon, OutlineHasThePensWidthAndItsOwnColour) {
    Canvas canvas(20, 20);
    const std::array<PointI, 4> box{{{5, 5}, {15, 5}, {15, 15}, {5, 15}}};
    drawPolygon(canvas.view(), box, black(3), 0xFFFF0000U);
    EXPECT_EQ(canvas.source().row(10)[10], 0xFFFF0000U);
    for (int x = 4; x <= 6; ++x) {
        EXPECT_TRUE(canvas.drawn(x, 10));
    }
    EXPECT_FALSE(canvas.drawn(3, 10));
    EXPECT_FALSE(canvas.drawn(7, 10));
}

TEST(Polygon, CrossedEdgesLeaveTheTwiceCoveredPartOpen) {
    Canvas canvas(41, 41);
    const std::array<PointI, 5> star{{{20, 0}, {32, 38}, {1, 14}, {39, 14}, {8, 38}}};
    drawPolygon(canvas.view(), star, black(1), Canvas::kBlack);
    EXPECT_FALSE(canvas.drawn(20, 22));
    EXPECT_TRUE(canvas.drawn(20, 8));
}

TEST(Polygon, OfOnePointOrNoneDrawsNothing) {
    Canvas canvas(5, 5);
    drawPolygon(canvas.view(), {}, black(1), Canvas::kBlack);
    drawPolygon(canvas.view(), std::array<PointI, 1>{{{2, 2}}}, black(1), Canvas::kBlack);
    EXPECT_EQ(canvas.count(), 0);
}

TEST(Polygon, WithAllPointsInOneIsADot) {
    Canvas canvas(5, 5);
    drawPolygon(canvas.view(), std::array<PointI, 3>{{{2, 2}, {2, 2}, {2, 2}}}, black(1), Canvas::kBlack);
    EXPECT_EQ(canvas.count(), 1);
}

TEST(Polygon, OfTheWidestRangeCoversTheView) {
    constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
    Canvas canvas(50, 40);
    drawPolygon(canvas.view(), std::array<PointI, 3>{{{kMin, kMax}, {0, kMin}, {kMax, kMax}}}, black(1),
                Canvas::kBlack);
    EXPECT_EQ(canvas.count(), 50 * 40);
}

} // namespace
} // namespace zeltrona::render
