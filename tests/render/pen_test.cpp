#include "render/pen.h"
#include "tests/render/canvas.h"

#include <chrono>
#include <gtest/gtest.h>
#include <limits>

namespace zeltrona::render {
namespace {

constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();

Pen black(int width) {
    return {width, Canvas::kBlack};
}

TEST(HairLine, IncludesBothEnds) {
    Canvas canvas(6, 3);
    strokeSegment(canvas.view(), {1, 1}, {4, 1}, black(1));
    EXPECT_EQ(canvas.text(), "\n......\n.####.\n......\n");
}

TEST(HairLine, OfOnePointIsOnePixel) {
    Canvas canvas(3, 3);
    strokeSegment(canvas.view(), {1, 1}, {1, 1}, black(1));
    EXPECT_EQ(canvas.text(), "\n...\n.#.\n...\n");
}

TEST(HairLine, StepsDiagonally) {
    Canvas canvas(5, 5);
    strokeSegment(canvas.view(), {0, 4}, {4, 0}, black(1));
    EXPECT_EQ(canvas.text(), R"(
....#
...#.
..#..
.#...
#....
)");
}

TEST(HairLine, OfHalfSlopeKeepsToTheNearerEndsSide) {
    Canvas canvas(7, 4);
    strokeSegment(canvas.view(), {0, 0}, {6, 3}, black(1));
    EXPECT_EQ(canvas.text(), R"(
##.....
..##...
....#..
.....##
)");
}

TEST(HairLine, IsTheSameFromEitherEnd) {
    for (int x = 0; x < 12; ++x) {
        for (int y = 0; y < 12; ++y) {
            Canvas there(12, 12);
            Canvas back(12, 12);
            strokeSegment(there.view(), {3, 7}, {x, y}, black(1));
            strokeSegment(back.view(), {x, y}, {3, 7}, black(1));
            ASSERT_EQ(there.text(), back.text());
            ASSERT_TRUE(isConnected(there, 12, 12));
            ASSERT_EQ(there.count(), std::max(std::abs(x - 3), std::abs(y - 7)) + 1);
        }
    }
}

TEST(HairLine, MirrorsItsMirrorImage) {
    Canvas canvas(13, 13);
    strokeSegment(canvas.view(), {0, 12}, {6, 0}, black(1));
    strokeSegment(canvas.view(), {12, 12}, {6, 0}, black(1));
    for (int y = 0; y < 13; ++y) {
        for (int x = 0; x < 13; ++x) {
            ASSERT_EQ(canvas.drawn(x, y), canvas.drawn(12 - x, y)) << canvas.text();
        }
    }
}

TEST(HairLine, ClippedShowsThePixelsOfTheWholeOne) {
    Canvas whole(200, 200);
    Canvas part(40, 40);
    strokeSegment(whole.view(), {3, 190}, {197, 2}, black(1));
    strokeSegment(part.view(), {3 - 80, 190 - 80}, {197 - 80, 2 - 80}, black(1));
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 40; ++x) {
            ASSERT_EQ(part.drawn(x, y), whole.drawn(x + 80, y + 80));
        }
    }
    EXPECT_GT(part.count(), 0);
}

TEST(HairLine, AcrossTheWidestRangeOfNumbersPassesThroughTheMiddle) {
    Canvas canvas(10, 10);
    strokeSegment(canvas.view(), {kMin, kMin}, {kMax, kMax}, black(1));
    for (int i = 0; i < 10; ++i) {
        EXPECT_TRUE(canvas.drawn(i, i));
    }
    EXPECT_EQ(canvas.count(), 10);
}

TEST(HairLine, PenBelowOneIsOnePixelWide) {
    Canvas canvas(4, 3);
    strokeSegment(canvas.view(), {0, 1}, {3, 1}, black(0));
    strokeSegment(canvas.view(), {0, 1}, {3, 1}, black(-1));
    EXPECT_EQ(canvas.count(), 4);
}

TEST(WidePen, IsAsManyPixelsWideAsItSaysAlongBothAxes) {
    for (int width = 2; width <= 9; ++width) {
        Canvas flat(40, 40);
        strokeSegment(flat.view(), {12, 20}, {28, 20}, black(width));
        Canvas upright(40, 40);
        strokeSegment(upright.view(), {20, 12}, {20, 28}, black(width));
        int across = 0;
        int down = 0;
        for (int i = 0; i < 40; ++i) {
            across += flat.drawn(20, i) ? 1 : 0;
            down += upright.drawn(i, 20) ? 1 : 0;
        }
        EXPECT_EQ(across, width);
        EXPECT_EQ(down, width);
    }
}

TEST(WidePen, OfTwoLeansUpAndLeft) {
    Canvas canvas(8, 5);
    strokeSegment(canvas.view(), {2, 2}, {5, 2}, black(2));
    EXPECT_EQ(canvas.text(), R"(
........
.#####..
.#####..
........
........
)");
}

TEST(WidePen, OfFiveHasRoundEnds) {
    Canvas canvas(13, 7);
    strokeSegment(canvas.view(), {4, 3}, {8, 3}, black(5));
    EXPECT_EQ(canvas.text(), R"(
.............
...#######...
..#########..
..#########..
..#########..
...#######...
.............
)");
}

TEST(WidePen, KeepsItsWidthOnADiagonal) {
    Canvas canvas(60, 60);
    strokeSegment(canvas.view(), {10, 10}, {50, 50}, black(4));
    int across = 0;
    for (int x = 0; x < 60; ++x) {
        across += canvas.drawn(x, 30) ? 1 : 0;
    }
    EXPECT_NEAR(across, 4.0 * 1.41421356, 1.0) << "a level cut through a slant of 45 degrees";
}

TEST(WidePen, IsTheSameFromEitherEndAndMirrors) {
    for (int width = 2; width <= 6; ++width) {
        Canvas there(40, 40);
        Canvas back(40, 40);
        Canvas mirrored(40, 40);
        strokeSegment(there.view(), {9, 30}, {22, 11}, black(width));
        strokeSegment(back.view(), {22, 11}, {9, 30}, black(width));
        const int lean = width % 2 == 0 ? 1 : 0;
        strokeSegment(mirrored.view(), {39 + lean - 9, 30}, {39 + lean - 22, 11}, black(width));
        EXPECT_EQ(there.text(), back.text());
        for (int y = 0; y < 40; ++y) {
            for (int x = 0; x < 40; ++x) {
                ASSERT_EQ(there.drawn(x, y), mirrored.drawn(39 - x, y));
            }
        }
    }
}

TEST(WidePen, DotOfTwoIsASquareAndOfOneAPixel) {
    Canvas canvas(8, 4);
    strokeDot(canvas.view(), {2, 2}, black(2));
    strokeDot(canvas.view(), {6, 2}, black(1));
    EXPECT_EQ(canvas.text(), R"(
........
.##.....
.##...#.
........
)");
}

TEST(WidePen, FarEndsAndHugeWidthsCostNoMoreThanTheView) {
    const auto start = std::chrono::steady_clock::now();
    Canvas canvas(532, 295);
    for (int i = 0; i < 20; ++i) {
        strokeSegment(canvas.view(), {kMin, i}, {kMax, 200}, black(3));
        strokeSegment(canvas.view(), {kMin, kMax}, {kMax, kMin}, black(9999));
        strokeSegment(canvas.view(), {kMax, kMax}, {kMax, kMin}, black(9999));
    }
    EXPECT_EQ(canvas.count(), 532 * 295);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

TEST(WidePen, BeyondTheViewDrawsNothing) {
    Canvas canvas(20, 20);
    strokeSegment(canvas.view(), {-10, 5}, {-5, 15}, black(5));
    strokeSegment(canvas.view(), {5, 25}, {15, 40}, black(5));
    strokeSegment(canvas.view(), {25, 5}, {40, 15}, black(5));
    EXPECT_EQ(canvas.count(), 0);
}

} // namespace
} // namespace zeltrona::render
