#include "editor/hit_test.h"
#include "tests/editor/editor_desk.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace zeltrona::editor {
namespace {

using testing::playerAt;

document::FrameRecords recordsWith(const document::PlayerRec& player) {
    document::FrameRecords records;
    records.offPlayers = {player};
    return records;
}

TEST(PointInBox, AllFourEdgesBelongToTheBox) {
    EXPECT_TRUE(pointInBox(10, 20, 26, 26, 10, 20));
    EXPECT_TRUE(pointInBox(10, 20, 26, 26, 36, 46));
    EXPECT_TRUE(pointInBox(10, 20, 26, 26, 36, 20));
    EXPECT_TRUE(pointInBox(10, 20, 26, 26, 10, 46));
    EXPECT_FALSE(pointInBox(10, 20, 26, 26, 9, 30));
    EXPECT_FALSE(pointInBox(10, 20, 26, 26, 37, 30));
    EXPECT_FALSE(pointInBox(10, 20, 26, 26, 20, 19));
    EXPECT_FALSE(pointInBox(10, 20, 26, 26, 20, 47));
}

TEST(PointInBox, BoxWithoutSizeIsOnePoint) {
    EXPECT_TRUE(pointInBox(5, 5, 0, 0, 5, 5));
    EXPECT_FALSE(pointInBox(5, 5, 0, 0, 6, 5));
}

TEST(PointInBox, BoxAtTheEndOfTheRangeStillHasItsEdges) {
    EXPECT_TRUE(pointInBox(32760, 0, 26, 26, 32767, 0));
    EXPECT_FALSE(pointInBox(0, 0, -1, 5, 0, 0));
}

struct RectangleRow {
    std::int16_t quadrant, step, dxFrom, dxTo, dyFrom, dyTo;
};

constexpr RectangleRow kRows[] = {
    {0, 15, 15, 29, 19, 34},   {0, 30, 15, 30, 19, 34},   {0, 45, 14, 30, 22, 36},
    {0, 60, 15, 31, 21, 37},   {0, 75, 15, 31, 20, 36},   {0, 90, 17, 32, 20, 35},
    {90, 15, 18, 33, 21, 36},  {90, 30, 17, 32, 20, 35},  {90, 45, 20, 34, 20, 35},
    {90, 60, 18, 34, 20, 36},  {90, 75, 17, 33, 20, 36},  {90, 90, 18, 33, 18, 33},
    {180, 15, 20, 35, 18, 33}, {180, 30, 18, 33, 18, 33}, {180, 45, 18, 33, 18, 32},
    {180, 60, 17, 33, 17, 33}, {180, 75, 15, 31, 16, 32}, {180, 90, 17, 32, 15, 30},
    {270, 15, 16, 32, 16, 31}, {270, 30, 16, 31, 17, 32}, {270, 45, 16, 29, 18, 33},
    {270, 60, 14, 30, 18, 34}, {270, 75, 13, 29, 18, 34}, {270, 90, 15, 35, 19, 34},
};

class BodyRectangles : public ::testing::TestWithParam<RectangleRow> {};

TEST_P(BodyRectangles, EveryPixelOfThePictureIsBodyOrHand) {
    const RectangleRow& row = GetParam();
    const auto angle = static_cast<std::int16_t>(row.quadrant + row.step);
    const auto records = recordsWith(playerAt(40, 60, "1", angle));
    for (std::int16_t dx = -1; dx <= 51; ++dx) {
        for (std::int16_t dy = -1; dy <= 51; ++dy) {
            const bool isOutside = dx < 0 || dx > 50 || dy < 0 || dy > 50;
            const bool isBody = dx >= row.dxFrom && dx <= row.dxTo && dy >= row.dyFrom && dy <= row.dyTo;
            const int wanted = isOutside ? 0 : (isBody ? 1 : 2);
            ASSERT_EQ(hitBodyHand(records, Side::Off, 0, static_cast<std::int16_t>(40 + dx),
                                  static_cast<std::int16_t>(60 + dy)),
                      wanted)
                << dx << ' ' << dy;
        }
    }
}

TEST_P(BodyRectangles, HoldForAllFifteenDegreesUpToTheStep) {
    const RectangleRow& row = GetParam();
    const BodyRectangle wanted{row.dxFrom, row.dxTo, row.dyFrom, row.dyTo};
    for (int back = 0; back < 15; ++back) {
        EXPECT_EQ(bodyRectangle(static_cast<std::int16_t>(row.quadrant + row.step - back)), wanted) << back;
    }
}

INSTANTIATE_TEST_SUITE_P(, BodyRectangles, ::testing::ValuesIn(kRows), [](const auto& row) {
    return "Quadrant" + std::to_string(row.param.quadrant) + "Step" + std::to_string(row.param.step);
});

TEST(BodyRectangle, AngleOutsideOneToFullTurnHasTheRectangleOfNinety) {
    for (const int angle : {0, -1, -15, -90, 361, 375, 405, 720, 32767, -32768}) {
        EXPECT_EQ(bodyRectangle(static_cast<std::int16_t>(angle)), (BodyRectangle{17, 32, 20, 35})) << angle;
    }
}

TEST(HitBodyHand, PositionIsRoundedHalfToEven) {
    auto records = recordsWith(playerAt(40.5F, 61.5F, "1", 90));
    EXPECT_EQ(hitBodyHand(records, Side::Off, 0, 40, 62), 2);
    EXPECT_EQ(hitBodyHand(records, Side::Off, 0, 39, 62), 0);
    EXPECT_EQ(hitBodyHand(records, Side::Off, 0, 40, 61), 0);
}

TEST(HitBodyHand, SideAndIndexNameThePlayer) {
    document::FrameRecords records;
    records.offPlayers = {playerAt(0, 0)};
    records.defPlayers = {playerAt(0, 0), playerAt(200, 200)};
    EXPECT_EQ(hitBodyHand(records, Side::Def, 1, 225, 225), 1);
    EXPECT_EQ(hitBodyHand(records, Side::Def, 0, 225, 225), 0);
    EXPECT_EQ(hitBodyHand(records, Side::Off, 1, 225, 225), 0);
    EXPECT_EQ(hitBodyHand(records, Side::Off, -1, 225, 225), 0);
}

/// The player's picture centred on (0, 0), and the pointer at (dx, dy) from there.
int angleTowards(int dx, int dy) {
    const auto records = recordsWith(playerAt(-25, -25));
    return handAngle(records, Side::Off, 0, static_cast<std::int16_t>(dx), static_cast<std::int16_t>(dy));
}

TEST(HandAngle, AxesAndCentre) {
    EXPECT_EQ(angleTowards(0, 0), 90);
    EXPECT_EQ(angleTowards(0, -20), 90);
    EXPECT_EQ(angleTowards(0, 20), 270);
    EXPECT_EQ(angleTowards(20, 0), 360);
    EXPECT_EQ(angleTowards(-20, 0), 180);
}

TEST(HandAngle, JustAboveTheRightAxisIsZero) {
    EXPECT_EQ(angleTowards(1000, -1), 0);
}

TEST(HandAngle, DiagonalsGoCounterClockwiseAsSeen) {
    EXPECT_EQ(angleTowards(20, -20), 45);
    EXPECT_EQ(angleTowards(-20, -20), 135);
    EXPECT_EQ(angleTowards(-20, 20), 225);
    EXPECT_EQ(angleTowards(20, 20), 315);
}

TEST(HandAngle, HalfATurnCountsAsThreePointOneFour) {
    // The two counts part by a degree only where the true angle lies close below a half.
    int differing = 0;
    for (int dy = 1; dy <= 200; ++dy) {
        const double radians = std::atan(static_cast<double>(dy) / 3.0);
        const int wanted = static_cast<int>(std::nearbyint(radians * 180.0 / 3.14));
        EXPECT_EQ(angleTowards(3, -dy), wanted) << dy;
        differing += wanted != static_cast<int>(std::nearbyint(radians * 180.0 / std::numbers::pi));
    }
    EXPECT_GT(differing, 0);
}

/// The same angle by another road: the full-turn arctangent, with each quarter's share stretched by pi
/// / 3.14.
int independentAngle(int dx, int dy) {
    if (dx == 0) {
        return dy > 0 ? 270 : 90;
    }
    const double turn = std::atan2(-dy, dx) * 180.0 / std::numbers::pi;
    const double full = turn < 0.0 || (dy == 0 && dx > 0) ? turn + 360.0 : turn;
    const double fromAxis = dx > 0 ? (full > 180.0 ? 360.0 - full : full) : std::abs(full - 180.0);
    const int share = static_cast<int>(std::lrint(fromAxis * std::numbers::pi / 3.14));
    if (dx > 0) {
        return full > 180.0 ? 360 - share : share;
    }
    return full > 180.0 ? 180 + share : 180 - share;
}

TEST(HandAngle, AgreesWithAnIndependentCalculationAllAround) {
    for (int dx = -40; dx <= 40; ++dx) {
        for (int dy = -40; dy <= 40; ++dy) {
            ASSERT_EQ(angleTowards(dx, dy), independentAngle(dx, dy)) << dx << ' ' << dy;
        }
    }
}

TEST(HandAngle, PlayerThatIsGoneGivesTheCentresAngle) {
    const document::FrameRecords records;
    EXPECT_EQ(handAngle(records, Side::Def, 5, 10, 10), 90);
}

TEST(HandAngle, CentreIsTwentyFiveFromTheRoundedPosition) {
    const auto records = recordsWith(playerAt(99.5F, 100.5F));
    EXPECT_EQ(handAngle(records, Side::Off, 0, 125, 125), 90);
    EXPECT_EQ(handAngle(records, Side::Off, 0, 125, 126), 270);
    EXPECT_EQ(handAngle(records, Side::Off, 0, 126, 125), 360);
}

} // namespace
} // namespace zeltrona::editor
