#include "render/arc.h"
#include "tests/render/canvas.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace zeltrona::render {
namespace {

constexpr double kPi = std::numbers::pi;

Pen black(int width) {
    return {width, Canvas::kBlack};
}

TEST(ThinArc, HalfCirclesOfFivePixelsMakeAWave) {
    Canvas canvas(16, 5);
    strokeArc(canvas.view(), {{2.5, 2}, 2.5, 0, 3.141}, black(1));
    strokeArc(canvas.view(), {{7.5, 2}, 2.5, 3.141, 0}, black(1));
    strokeArc(canvas.view(), {{12.5, 2}, 2.5, 0, 3.141}, black(1));
    EXPECT_EQ(canvas.text(), R"(
.####......####.
#....#....#....#
#....#....#....#
.....#....#.....
......####......
)");
}

TEST(ThinArc, FromZeroToHalfATurnIsTheUpperHalf) {
    Canvas canvas(21, 21);
    strokeArc(canvas.view(), {{10, 10}, 8, 0, kPi}, black(1));
    EXPECT_TRUE(canvas.drawn(10, 2));
    EXPECT_TRUE(canvas.drawn(2, 10));
    EXPECT_TRUE(canvas.drawn(18, 10));
    EXPECT_FALSE(canvas.drawn(10, 18));
}

TEST(ThinArc, ThroughZeroGoesOnCounterClockwise) {
    Canvas canvas(21, 21);
    strokeArc(canvas.view(), {{10, 10}, 8, 9.423 / 2, 3.141 / 2}, black(1));
    EXPECT_TRUE(canvas.drawn(18, 10)) << "the right half: from the bottom through the right side to the top";
    EXPECT_TRUE(canvas.drawn(10, 2));
    EXPECT_TRUE(canvas.drawn(10, 18));
    EXPECT_FALSE(canvas.drawn(2, 10));
}

TEST(ThinArc, IsSymmetricWhereItsShapeIs) {
    for (double radius = 0.5; radius < 14; radius += 0.5) {
        Canvas canvas(41, 41);
        strokeArc(canvas.view(), {{20, 20}, radius, 0, kPi}, black(1));
        for (int y = 0; y < 41; ++y) {
            for (int x = 0; x < 41; ++x) {
                ASSERT_EQ(canvas.drawn(x, y), canvas.drawn(40 - x, y)) << radius << canvas.text();
            }
        }
    }
}

TEST(ThinArc, IsOneUnbrokenChainAtAnyPlaceRadiusAndSweep) {
    for (int i = 0; i < 4000; ++i) {
        const double x = 20 + (i % 13) * 0.081;
        const double y = 20 + (i % 17) * 0.059;
        const double radius = 1 + (i % 59) * 0.25;
        const double start = (i % 23) * 0.29;
        Canvas canvas(42, 42);
        strokeArc(canvas.view(), {{x, y}, radius, start, start + 0.4 + (i % 7) * 0.8}, black(1));
        ASSERT_TRUE(isConnected(canvas, 42, 42)) << i << canvas.text();
    }
}

TEST(ThinArc, StaysWithinHalfAPixelOfTheCircle) {
    Canvas canvas(42, 42);
    strokeArc(canvas.view(), {{20.3, 20.7}, 15.2, 0.3, 5.9}, black(1));
    for (int y = 0; y < 42; ++y) {
        for (int x = 0; x < 42; ++x) {
            if (canvas.drawn(x, y)) {
                EXPECT_NEAR(std::hypot(x - 20.3, y - 20.7), 15.2, 0.7072);
            }
        }
    }
}

TEST(WideArc, IsAsThickAsThePen) {
    for (int pen = 2; pen <= 5; ++pen) {
        Canvas canvas(60, 60);
        strokeArc(canvas.view(), {{30, 40}, 20, 0, 3.141}, black(pen));
        int top = 0;
        for (int y = 0; y < 40; ++y) {
            top += canvas.drawn(30, y) ? 1 : 0;
        }
        EXPECT_EQ(top, pen);
        EXPECT_TRUE(isConnected(canvas, 60, 60));
        EXPECT_FALSE(canvas.drawn(30, 59));
    }
}

TEST(WideArc, WavesJoin) {
    Canvas canvas(26, 12);
    for (int i = 0; i < 4; ++i) {
        const bool up = i % 2 == 0;
        strokeArc(canvas.view(), {{4.5 + i * 5, 6}, 2.5, up ? 0 : 3.141, up ? 3.141 : 0}, black(2));
    }
    EXPECT_TRUE(isConnected(canvas, 26, 12));
    EXPECT_EQ(canvas.text(), R"(
..........................
..........................
..........................
..#####.....#####.........
.#######...#######........
.##...##...##...##...##...
.##...##...##...##...##...
......#######...#######...
.......#####.....#####....
..........................
..........................
..........................
)");
}

TEST(Arc, WithoutRadiusDrawsNothing) {
    Canvas canvas(9, 9);
    for (const double radius : {0.0, -3.0}) {
        strokeArc(canvas.view(), {{4, 4}, radius, 0, 3}, black(1));
        strokeArc(canvas.view(), {{4, 4}, radius, 0, 3}, black(3));
    }
    EXPECT_EQ(canvas.count(), 0);
}

TEST(Arc, FarOffOrHugeIsClipped) {
    Canvas canvas(50, 50);
    strokeArc(canvas.view(), {{2e9, 2e9}, 2.5, 0, 3.141}, black(1));
    strokeArc(canvas.view(), {{-2e9, 10}, 2.5, 0, 3.141}, black(4));
    EXPECT_EQ(canvas.count(), 0);
    strokeArc(canvas.view(), {{25, 1e9 + 25}, 1e9, 0, kPi}, black(1));
    EXPECT_TRUE(canvas.drawn(25, 25));
    EXPECT_LE(canvas.count(), 60);
}

} // namespace
} // namespace zeltrona::render
