#include "tests/art/pictures.h"

#include <cmath>
#include <gtest/gtest.h>

namespace zeltrona::art {

namespace {

constexpr int kBand = 330;

/// The half court with the basket at the top of set 0, 1 or 2.
QImage halfCourt(int set) {
    return band(committed("picT.png"), set * 2 * kBand, 360, kBand);
}

QImage halfCourtFromBelow(int set) {
    return band(committed("picT.png"), (set * 2 + 1) * kBand, 360, kBand);
}

QImage wholeCourt(int set) {
    return band(committed("picTbig.png"), set * 290, 530, 290);
}

class Courts : public ::testing::TestWithParam<int> {};

} // namespace

TEST(CourtSheets, HaveTheSameLinesInBothDepths) {
    const QImage small = committed("picT.png");
    const QImage big = committed("picTbig.png");
    EXPECT_EQ(small.convertToFormat(QImage::Format_RGB32),
              committed("picTblack.png").convertToFormat(QImage::Format_RGB32));
    EXPECT_EQ(big.convertToFormat(QImage::Format_RGB32),
              committed("picTbigBlack.png").convertToFormat(QImage::Format_RGB32));
}

TEST(CourtSheets, ArePureBlackOnPureWhite) {
    for (const char* name : {"picT.png", "picTbig.png"}) {
        const QImage sheet = committed(name);
        for (int y = 0; y < sheet.height(); ++y) {
            for (int x = 0; x < sheet.width(); ++x) {
                ASSERT_TRUE(black(sheet, x, y) || white(sheet, x, y)) << name << ' ' << x << ' ' << y;
            }
        }
    }
}

TEST(CourtSheets, LeaveTheColumnBeyondThePictureWhite) {
    const QImage sheet = committed("picT.png");
    for (int y = 0; y < sheet.height(); ++y) {
        ASSERT_TRUE(white(sheet, 360, y)) << y;
    }
}

TEST_P(Courts, AreEvenLeftAndRightOfTheBasket) {
    const QImage court = halfCourt(GetParam());
    EXPECT_EQ(court, court.mirrored(true, false));
}

TEST_P(Courts, WithTheBasketAtTheBottomAreTheOthersUpsideDown) {
    EXPECT_EQ(halfCourtFromBelow(GetParam()), halfCourt(GetParam()).mirrored(false, true));
}

TEST_P(Courts, WholeAreEvenInBothDirections) {
    const QImage court = wholeCourt(GetParam());
    EXPECT_EQ(court, court.mirrored(true, false));
    EXPECT_EQ(court, court.mirrored(false, true));
}

TEST_P(Courts, AreClosedTowardsTheFloorAroundThem) {
    EXPECT_FALSE(isOpenBetween(halfCourt(GetParam()), {0, 0}, {30, 300}, Steps::Corners));
    EXPECT_FALSE(isOpenBetween(wholeCourt(GetParam()), {0, 0}, {200, 30}, Steps::Corners));
}

TEST_P(Courts, CloseTheThreePointLineAgainstTheRest) {
    // From beside the lane to half way to the middle line.
    EXPECT_FALSE(isOpenBetween(halfCourt(GetParam()), {100, 60}, {180, 250}, Steps::Corners));
    EXPECT_FALSE(isOpenBetween(wholeCourt(GetParam()), {60, 60}, {210, 145}, Steps::Corners));
}

TEST_P(Courts, CloseTheLane) {
    EXPECT_FALSE(isOpenBetween(halfCourt(GetParam()), {180, 60}, {90, 60}, Steps::Corners));
    EXPECT_FALSE(isOpenBetween(wholeCourt(GetParam()), {60, 145}, {60, 60}, Steps::Corners));
}

TEST_P(Courts, CloseTheCentreCircleAndTheRing) {
    const QImage whole = wholeCourt(GetParam());
    EXPECT_FALSE(isOpenBetween(whole, {250, 145}, {200, 145}, Steps::Corners));
    EXPECT_FALSE(isOpenBetween(halfCourt(GetParam()), {180, 310}, {60, 310}, Steps::Corners));
}

INSTANTIATE_TEST_SUITE_P(OfEachSet, Courts, ::testing::Values(0, 1, 2));

} // namespace zeltrona::art
