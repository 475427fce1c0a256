#include "render/body_sprite.h"

#include <gtest/gtest.h>
#include <limits>

namespace zeltrona::render {
namespace {

struct AngleRow {
    int first;
    int last;
    int base;
    int step; ///< from 0
};

constexpr AngleRow kRows[] = {{0, 0, 270, 5},     {1, 15, 0, 0},      {16, 30, 0, 1},     {31, 45, 0, 2},
                              {46, 60, 0, 3},     {61, 75, 0, 4},     {76, 90, 0, 5},     {91, 105, 90, 0},
                              {106, 120, 90, 1},  {121, 135, 90, 2},  {136, 150, 90, 3},  {151, 165, 90, 4},
                              {166, 180, 90, 5},  {181, 195, 180, 0}, {196, 210, 180, 1}, {211, 225, 180, 2},
                              {226, 240, 180, 3}, {241, 255, 180, 4}, {256, 270, 180, 5}, {271, 285, 270, 0},
                              {286, 300, 270, 1}, {301, 315, 270, 2}, {316, 330, 270, 3}, {331, 345, 270, 4},
                              {346, 360, 270, 5}, {361, 32767, 0, 5}, {-32768, -1, 0, 5}};

TEST(BodySprite, EveryAngleHasItsTurnAndStep) {
    int angles = 0;
    for (const AngleRow& row : kRows) {
        for (int angle = row.first; angle <= row.last; ++angle, ++angles) {
            const BodySprite sprite = bodySpriteOf(static_cast<std::int16_t>(angle), 0);
            ASSERT_EQ(sprite.baseAngle, row.base) << angle;
            ASSERT_EQ(sprite.skinAndMask, row.step + 1) << angle;
            ASSERT_EQ(sprite.shirt, row.step + 1) << angle;
        }
    }
    EXPECT_EQ(angles, 65536);
}

TEST(BodySprite, ZeroShowsWhatAFullTurnShows) {
    EXPECT_EQ(bodySpriteOf(0, 2), bodySpriteOf(360, 2));
    EXPECT_EQ(bodySpriteOf(0, 2), (BodySprite{270, 18, 6}));
}

TEST(BodySprite, OneAndFifteenDegreesAreOneStepAndSixteenTheNext) {
    EXPECT_EQ(bodySpriteOf(1, 0), bodySpriteOf(15, 0));
    EXPECT_NE(bodySpriteOf(15, 0), bodySpriteOf(16, 0));
}

TEST(BodySprite, PosesFollowEachOtherInTheListsBySix) {
    for (std::int16_t body = 0; body <= 3; ++body) {
        for (std::int16_t step = 0; step < 6; ++step) {
            const BodySprite sprite = bodySpriteOf(static_cast<std::int16_t>(step * 15 + 15), body);
            EXPECT_EQ(sprite.skinAndMask, body * 6 + step + 1);
            EXPECT_EQ(sprite.shirt, step + 1) << "every pose wears the same shirts";
        }
    }
}

TEST(BodySprite, PoseOutsideItsRangeIsPoseZero) {
    for (const int body : {4, 9, -1, 32767, -32768}) {
        EXPECT_EQ(bodySpriteOf(100, static_cast<std::int16_t>(body)), bodySpriteOf(100, 0)) << body;
    }
}

} // namespace
} // namespace zeltrona::render
