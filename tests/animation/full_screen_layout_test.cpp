#include "animation/full_screen_layout.h"

#include <gtest/gtest.h>
#include <vector>

namespace zeltrona::animation {
namespace {

/// A bar of 350 x 34, a hint line 18 high, a half court of 363 x 332.
FullScreenMeasures screenOf(int width, int height, int boardWidth = 363, int boardHeight = 332) {
    return {width, height, 350, 34, 18, boardWidth, boardHeight};
}

/// A name five times as wide as its size in points, and one and a half times as high.
TextExtent plainName(int fontSize) {
    return {fontSize * 5, fontSize * 3 / 2};
}

struct ScreenRow {
    const char* name;
    FullScreenMeasures measures;
    std::int16_t hintTop;
    std::int16_t toolTop;
    int toolLeft;
    double scale;
    int left, top, width, height;
};

// Worked out by hand: hint = height - 54; bar 68 above it up to 610 rows, else 102; picture centred above the
// bar.
TEST(FullScreenLayout, ScreensWorkedOutByHand) {
    const ScreenRow rows[] = {
        {"800 x 600, half court", screenOf(800, 600), 546, 478, 225, 1.0, 218, 73, 363, 332},
        {"800 x 600, whole court", screenOf(800, 600, 532, 295), 546, 478, 225, 1.0, 134, 91, 532, 295},
        {"1280 x 800, half court", screenOf(1280, 800), 746, 644, 465, 1.4, 385, 89, 508, 465},
        {"1280 x 800, whole court", screenOf(1280, 800, 532, 295), 746, 644, 465, 1.0, 374, 174, 532, 295},
        {"1920 x 1080, half court", screenOf(1920, 1080), 1026, 924, 785, 1.4, 705, 229, 508, 465},
        {"1024 x 610, half court", screenOf(1024, 610), 556, 488, 337, 1.4, 257, 11, 508, 465},
        {"1024 x 611, half court", screenOf(1024, 611), 557, 455, 337, 1.4 - 0.1, 276, 11, 472, 432},
        {"809 wide is not wide", screenOf(809, 600), 546, 478, 229, 1.0, 223, 73, 363, 332},
        {"810 wide is wide", screenOf(810, 600), 546, 478, 230, 1.4, 150, 6, 508, 465},
        {"a board of 499", screenOf(1280, 800, 499, 300), 746, 644, 465, 1.4, 290, 112, 699, 420},
        {"a board of 500", screenOf(1280, 800, 500, 300), 746, 644, 465, 1.0, 390, 172, 500, 300},
    };
    for (const ScreenRow& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(hintTopOf(row.measures), row.hintTop);
        const ToolPlaces tools = placeAnimTools(row.measures, row.hintTop, plainName);
        EXPECT_EQ(tools.toolTop, row.toolTop);
        EXPECT_EQ(tools.left, row.toolLeft);
        const BoardView view = sizeBoardView(row.measures, row.toolTop);
        EXPECT_TRUE(view.fits);
        EXPECT_DOUBLE_EQ(view.picScale, row.scale);
        EXPECT_EQ((std::vector<int>{view.left, view.top, view.width, view.height}),
                  (std::vector<int>{row.left, row.top, row.width, row.height}));
    }
}

TEST(FullScreenLayout, ABoardOf600Before500RowsGoesTo80PerCent) {
    const BoardView view = sizeBoardView(screenOf(800, 650, 600, 600), 500);
    EXPECT_DOUBLE_EQ(view.picScale, 0.8);
    EXPECT_EQ(view.top, 10);
    EXPECT_EQ(view.height, 480);
}

TEST(FullScreenLayout, APictureThatJustFitsIsNotLowered) {
    EXPECT_EQ(sizeBoardView(screenOf(800, 600), 332).picScale, 1.0);
    EXPECT_EQ(sizeBoardView(screenOf(800, 600), 332).top, 0);
    EXPECT_DOUBLE_EQ(sizeBoardView(screenOf(800, 600), 331).picScale, 0.9) << "the whole part of -0.5 is -1";
}

TEST(FullScreenLayout, NoScaleIsLeftBelowATenth) {
    EXPECT_TRUE(sizeBoardView(screenOf(800, 600, 363, 300), 31).fits);
    EXPECT_NEAR(sizeBoardView(screenOf(800, 600, 363, 300), 31).picScale, 0.1, 1e-12);
    EXPECT_FALSE(sizeBoardView(screenOf(800, 600, 363, 300), 29).fits);
    EXPECT_FALSE(sizeBoardView(screenOf(1280, 600), -5).fits);
}

TEST(FullScreenLayout, TheNameStandsInTheMarginsAtTheMiddleOfTheBar) {
    const NamePlaces name = placeAnimTools(screenOf(1280, 800), 746, plainName).name;
    EXPECT_TRUE(name.shown);
    EXPECT_EQ(name.fontSize, 20);
    EXPECT_EQ(name.leftX, 182) << "whole part of (465 - 100) / 2";
    EXPECT_EQ(name.rightX, 815 + 182);
    EXPECT_EQ(name.y, 644 + 17 - 15);
}

TEST(FullScreenLayout, AnOddWidthLeavesAHalfPixelOnTheRight) {
    const NamePlaces name = placeAnimTools(screenOf(1281, 800), 746, plainName).name;
    EXPECT_EQ(name.leftX, 182);
    EXPECT_EQ(name.rightX, 815.5 + 182);
}

TEST(FullScreenLayout, ANameWiderThanTheMarginMovesLeftByTheFloor) {
    const NamePlaces name = placeAnimTools(screenOf(431, 600), 546, plainName).name;
    EXPECT_TRUE(name.shown) << "40 of margin is wider than the name is high";
    EXPECT_EQ(name.leftX, -30);
    const NamePlaces odd = placeAnimTools(screenOf(433, 600), 546, plainName).name;
    EXPECT_EQ(odd.leftX, -30) << "the whole part of -29.5";
}

TEST(FullScreenLayout, TheNameShrinksWhileItIsHigherThanTheMarginIsWide) {
    EXPECT_EQ(placeAnimTools(screenOf(350 + 60, 600), 546, plainName).name.fontSize, 20) << "30 against 30";
    EXPECT_EQ(placeAnimTools(screenOf(350 + 58, 600), 546, plainName).name.fontSize, 18);
    EXPECT_EQ(placeAnimTools(screenOf(350 + 24, 600), 546, plainName).name.fontSize, 8);
}

TEST(FullScreenLayout, BelowSizeEightThereIsNoName) {
    EXPECT_FALSE(placeAnimTools(screenOf(350 + 22, 600), 546, plainName).name.shown);
    EXPECT_FALSE(placeAnimTools(screenOf(300, 600), 546, plainName).name.shown)
        << "the bar is wider than the window";
    EXPECT_EQ(placeAnimTools(screenOf(301, 600), 546, plainName).left, -25) << "the whole part of -24.5";
}

} // namespace
} // namespace zeltrona::animation
