#include "render/bezier_stroke.h"
#include "tests/render/canvas.h"

#include <array>
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

TEST(Bezier, StraightOneIsAStraightChain) {
    Canvas canvas(12, 3);
    strokeBeziers(canvas.view(), std::array<PointI, 4>{{{1, 1}, {10, 1}, {10, 1}, {10, 1}}}, black(1));
    EXPECT_EQ(canvas.text(), "\n............\n.##########.\n............\n");
}

TEST(Bezier, DiagonalOneHasNoCorners) {
    Canvas canvas(12, 12);
    strokeBeziers(canvas.view(), std::array<PointI, 4>{{{1, 10}, {4, 7}, {7, 4}, {10, 1}}}, black(1));
    for (int i = 1; i <= 10; ++i) {
        EXPECT_TRUE(canvas.drawn(i, 11 - i)) << canvas.text();
    }
    EXPECT_EQ(canvas.count(), 10);
}

TEST(Bezier, PassesItsEndsAndIsPulledByItsControls) {
    Canvas canvas(60, 60);
    strokeBeziers(canvas.view(), std::array<PointI, 4>{{{5, 50}, {30, 0}, {30, 0}, {55, 50}}}, black(1));
    EXPECT_TRUE(canvas.drawn(5, 50));
    EXPECT_TRUE(canvas.drawn(55, 50));
    EXPECT_TRUE(canvas.drawn(30, 13))
        << "12.5 at the middle: an eighth of both ends and three quarters of the control";
    EXPECT_TRUE(isConnected(canvas, 60, 60));
}

TEST(Bezier, CubicsRunOnFromOneAnother) {
    Canvas canvas(60, 60);
    const std::array<PointI, 7> points{{{5, 30}, {15, 5}, {20, 10}, {30, 30}, {40, 50}, {45, 55}, {55, 30}}};
    strokeBeziers(canvas.view(), points, black(1));
    EXPECT_TRUE(canvas.drawn(5, 30));
    EXPECT_TRUE(canvas.drawn(30, 30));
    EXPECT_TRUE(canvas.drawn(55, 30));
    EXPECT_TRUE(isConnected(canvas, 60, 60));
}

TEST(Bezier, PointsOfAnUnfinishedCubicDoNotCount) {
    Canvas canvas(20, 20);
    strokeBeziers(canvas.view(), std::array<PointI, 3>{{{1, 1}, {10, 10}, {18, 18}}}, black(1));
    strokeBeziers(canvas.view(), {}, black(1));
    EXPECT_EQ(canvas.count(), 0);
}

TEST(Bezier, OfOnePlaceIsADot) {
    Canvas canvas(9, 9);
    strokeBeziers(canvas.view(), std::array<PointI, 4>{{{4, 4}, {4, 4}, {4, 4}, {4, 4}}}, black(1));
    EXPECT_EQ(canvas.count(), 1);
    strokeBeziers(canvas.view(), std::array<PointI, 4>{{{4, 4}, {4, 4}, {4, 4}, {4, 4}}}, black(3));
    EXPECT_EQ(canvas.count(), 9);
}

TEST(Bezier, WidePenKeepsItsWidth) {
    for (int pen = 2; pen <= 5; ++pen) {
        Canvas canvas(60, 60);
        strokeBeziers(canvas.view(), std::array<PointI, 4>{{{5, 50}, {30, 5}, {30, 5}, {55, 50}}},
                      black(pen));
        int top = 0;
        for (int y = 0; y < 40; ++y) {
            top += canvas.drawn(30, y) ? 1 : 0;
        }
        EXPECT_EQ(top, pen);
        EXPECT_TRUE(isConnected(canvas, 60, 60));
    }
}

TEST(Bezier, WidePenReachesTheTurnOfACurveThatComesBackOnItself) {
    Canvas canvas(60, 9);
    strokeBeziers(canvas.view(), std::array<PointI, 4>{{{5, 4}, {60, 4}, {60, 4}, {10, 4}}}, black(3));
    EXPECT_TRUE(canvas.drawn(45, 4));
    EXPECT_FALSE(canvas.drawn(58, 4));
}

TEST(Bezier, FarControlsCostNoMoreThanTheView) {
    const auto start = std::chrono::steady_clock::now();
    Canvas canvas(532, 295);
    const std::array<PointI, 4> far{{{10, 10}, {kMax, kMin}, {kMin, kMax}, {500, 250}}};
    const std::array<PointI, 4> edge{{{kMin, 100}, {kMax, 100}, {kMin, 100}, {kMax, 100}}};
    for (const int pen : {1, 3}) {
        strokeBeziers(canvas.view(), far, black(pen));
        strokeBeziers(canvas.view(), edge, black(pen));
    }
    EXPECT_TRUE(canvas.drawn(10, 10));
    EXPECT_TRUE(canvas.drawn(500, 250));
    EXPECT_TRUE(canvas.drawn(266, 100));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

} // namespace
} // namespace zeltrona::render
