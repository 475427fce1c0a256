#include "render/ellipse.h"
#include "tests/render/canvas.h"

#include <gtest/gtest.h>
#include <limits>

namespace zeltrona::render {
namespace {

constexpr std::uint32_t kRed = 0xFFFF0000U;

EllipseInk solid() {
    return {1, Canvas::kBlack, Canvas::kBlack};
}

TEST(Ellipse, FillsItsBoxWithoutTheFarColumnAndRow) {
    Canvas canvas(9, 8);
    drawEllipse(canvas.view(), {1, 1, 7, 7}, solid());
    EXPECT_EQ(canvas.text(), R"(
.........
..####...
.######..
.######..
.######..
.######..
..####...
.........
)");
}

TEST(Ellipse, OfFourteenIsTheDiscOfABall) {
    Canvas canvas(14, 14);
    drawEllipse(canvas.view(), {0, 0, 14, 14}, solid());
    EXPECT_EQ(canvas.text(), R"(
....######....
...########...
..##########..
.############.
##############
##############
##############
##############
##############
##############
.############.
..##########..
...########...
....######....
)");
}

TEST(Ellipse, TouchesAllFourSidesAtEverySize) {
    for (int width = 1; width <= 24; ++width) {
        for (int height = 1; height <= 24; ++height) {
            Canvas canvas(width, height);
            drawEllipse(canvas.view(), {0, 0, width, height}, solid());
            bool left = false;
            bool right = false;
            for (int y = 0; y < height; ++y) {
                left = left || canvas.drawn(0, y);
                right = right || canvas.drawn(width - 1, y);
            }
            bool top = false;
            bool bottom = false;
            for (int x = 0; x < width; ++x) {
                top = top || canvas.drawn(x, 0);
                bottom = bottom || canvas.drawn(x, height - 1);
            }
            ASSERT_TRUE(left && right && top && bottom) << width << " x " << height << canvas.text();
            ASSERT_TRUE(isConnected(canvas, width, height));
        }
    }
}

TEST(Ellipse, IsSymmetricBothWaysAndACircleAcrossItsDiagonalToo) {
    for (int size = 1; size <= 60; ++size) {
        Canvas canvas(size, size);
        drawEllipse(canvas.view(), {0, 0, size, size}, {1, Canvas::kBlack, std::nullopt});
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                ASSERT_EQ(canvas.drawn(x, y), canvas.drawn(size - 1 - x, y)) << size;
                ASSERT_EQ(canvas.drawn(x, y), canvas.drawn(x, size - 1 - y)) << size;
                ASSERT_EQ(canvas.drawn(x, y), canvas.drawn(y, x)) << size;
            }
        }
    }
}

TEST(Ellipse, OutlineIsThinClosedAndOnTheRimOfTheFilledOne) {
    Canvas canvas(9, 9);
    drawEllipse(canvas.view(), {0, 0, 9, 9}, {1, Canvas::kBlack, std::nullopt});
    EXPECT_EQ(canvas.text(), R"(
..#####..
.#.....#.
#.......#
#.......#
#.......#
#.......#
#.......#
.#.....#.
..#####..
)");
}

TEST(Ellipse, OutlineAndInsideMeetWithoutAGap) {
    Canvas canvas(30, 20);
    drawEllipse(canvas.view(), {2, 3, 28, 17}, {1, Canvas::kBlack, kRed});
    Canvas filled(30, 20);
    drawEllipse(filled.view(), {2, 3, 28, 17}, solid());
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 30; ++x) {
            EXPECT_EQ(canvas.source().row(y)[x] != Canvas::kWhite, filled.drawn(x, y));
        }
    }
    EXPECT_EQ(canvas.source().row(10)[15], kRed);
    EXPECT_TRUE(canvas.drawn(2, 10));
    EXPECT_TRUE(canvas.drawn(27, 10));
}

TEST(Ellipse, WithoutAnInsideLeavesIt) {
    Canvas canvas(20, 20);
    fillAll(canvas.view(), kRed);
    drawEllipse(canvas.view(), {2, 2, 18, 18}, {1, Canvas::kBlack, std::nullopt});
    EXPECT_EQ(canvas.source().row(10)[10], kRed);
}

TEST(Ellipse, OutlineIsAsThickAsThePen) {
    for (int pen = 1; pen <= 6; ++pen) {
        Canvas canvas(60, 60);
        drawEllipse(canvas.view(), {10, 10, 50, 50}, {pen, Canvas::kBlack, std::nullopt});
        int left = 0;
        for (int x = 0; x < 30; ++x) {
            left += canvas.drawn(x, 30) ? 1 : 0;
        }
        EXPECT_EQ(left, pen);
        EXPECT_TRUE(canvas.drawn(10, 30));
    }
}

TEST(Ellipse, WithoutWidthOrHeightDrawsNothing) {
    Canvas canvas(9, 9);
    drawEllipse(canvas.view(), {3, 3, 3, 8}, solid());
    drawEllipse(canvas.view(), {3, 3, 8, 3}, solid());
    EXPECT_EQ(canvas.count(), 0);
}

TEST(Ellipse, BoxTakesItsCornersInAnyOrder) {
    const EllipseBox want{1, 2, 7, 9};
    EXPECT_EQ(ellipseBoxOf(1, 2, 7, 9), want);
    EXPECT_EQ(ellipseBoxOf(7, 2, 1, 9), want);
    EXPECT_EQ(ellipseBoxOf(1, 9, 7, 2), want);
    EXPECT_EQ(ellipseBoxOf(7, 9, 1, 2), want);
}

TEST(Ellipse, OfTheWidestRangeCoversTheView) {
    constexpr std::int64_t kMin = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t kMax = std::numeric_limits<std::int32_t>::max();
    Canvas canvas(532, 295);
    drawEllipse(canvas.view(), {kMin, kMin, kMax, kMax}, solid());
    EXPECT_EQ(canvas.count(), 532 * 295);
    Canvas beside(20, 20);
    drawEllipse(beside.view(), {30, 0, kMax, 20}, solid());
    drawEllipse(beside.view(), {0, kMin, 20, -5}, solid());
    EXPECT_EQ(beside.count(), 0);
}

TEST(Ellipse, RowOutsideTheBoxIsEmpty) {
    const EllipseBox box{0, 0, 10, 10};
    EXPECT_LT(ellipseRow(box, -1).right, ellipseRow(box, -1).left);
    EXPECT_LT(ellipseRow(box, 10).right, ellipseRow(box, 10).left);
    EXPECT_EQ(ellipseRow(box, 5), (RowSpan{0, 9}));
}

} // namespace
} // namespace zeltrona::render
