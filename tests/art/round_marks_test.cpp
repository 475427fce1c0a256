#include "tests/art/pictures.h"

#include <cmath>
#include <gtest/gtest.h>

namespace zeltrona::art {

namespace {

/// Distance of the pixel's middle from (13, 13).
double fromMiddle(int x, int y) {
    return std::hypot(x + 0.5 - 13.0, y + 0.5 - 13.0);
}

} // namespace

TEST(PlayerRing, IsTwentyAcrossAndTwoThick) {
    const QImage ring = committed("pKrugMask.png");
    for (int i = 0; i < 26; ++i) {
        const bool line = i == 3 || i == 4 || i == 21 || i == 22;
        EXPECT_EQ(black(ring, i, 13), line) << i;
        EXPECT_EQ(black(ring, 13, i), line) << i;
    }
}

TEST(PlayerRing, IsRound) {
    const QImage ring = committed("pKrugMask.png").convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(ring, ring.mirrored(true, false));
    EXPECT_EQ(ring, ring.mirrored(false, true));
    EXPECT_EQ(ring, quarterTurned(ring, 1));
}

TEST(PlayerRing, ClosesAroundTheDiscWithoutFloorBetween) {
    const QImage ring = committed("pKrugMask.png");
    EXPECT_FALSE(isOpenBetween(ring, {0, 0}, {13, 13}, Steps::Corners));
    for (int y = 0; y < 26; ++y) {
        for (int x = 0; x < 26; ++x) {
            const bool discRim = fromMiddle(x, y) > 8.0 && fromMiddle(x, y) <= 9.0;
            EXPECT_TRUE(!discRim || black(ring, x, y)) << x << ' ' << y;
        }
    }
}

TEST(Ball, IsBlackOutsideItsDisc) {
    const QImage ball = committed("pBall.png");
    for (int y = 0; y < 26; ++y) {
        for (int x = 0; x < 26; ++x) {
            EXPECT_EQ(black(ball, x, y), fromMiddle(x, y) > 7.0) << x << ' ' << y;
        }
    }
}

TEST(Ball, IsFourteenAcross) {
    const QImage ball = committed("pBall.png");
    EXPECT_TRUE(black(ball, 5, 13));
    EXPECT_FALSE(black(ball, 6, 13));
    EXPECT_FALSE(black(ball, 19, 13));
    EXPECT_TRUE(black(ball, 20, 13));
}

TEST(Ball, IsOrangeAndLitFromTheUpperLeft) {
    const QImage ball = committed("pBall.png");
    const QRgb lit = ball.pixel(10, 10);
    const QRgb shaded = ball.pixel(15, 16);
    EXPECT_GT(qRed(lit), qGreen(lit) + 60);
    EXPECT_GT(qGreen(lit), qBlue(lit) + 40);
    EXPECT_GT(luminance(lit), luminance(shaded) * 1.2);
}

TEST(Ball, HasDarkerSeams) {
    const QImage ball = committed("pBall.png");
    EXPECT_LT(luminance(ball.pixel(13, 9)), luminance(ball.pixel(11, 9)) * 0.75);
    EXPECT_LT(luminance(ball.pixel(9, 13)), luminance(ball.pixel(10, 11)) * 0.75);
}

} // namespace zeltrona::art
