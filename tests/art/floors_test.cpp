#include "tests/art/pictures.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace zeltrona::art {

namespace {

/// CIE lightness, 0 to 100.
double lightness(QRgb colour) {
    return 116.0 * std::cbrt(luminance(colour)) - 16.0;
}

class Floors : public ::testing::TestWithParam<const char*> {
protected:
    QImage floor = committed(QString::fromLatin1(GetParam()));
};

} // namespace

TEST_P(Floors, LetBlackAndWhiteLinesRead) {
    for (int y = 0; y < floor.height(); ++y) {
        for (int x = 0; x < floor.width(); ++x) {
            ASSERT_GE(contrast(floor.pixel(x, y), qRgb(255, 255, 255)), 2.4) << x << ' ' << y;
            ASSERT_GE(contrast(floor.pixel(x, y), qRgb(0, 0, 0)), 6.0) << x << ' ' << y;
        }
    }
}

TEST_P(Floors, HaveNothingInThemThatCouldBeALine) {
    double darkest = 100.0;
    double brightest = 0.0;
    for (int y = 0; y < floor.height(); ++y) {
        for (int x = 0; x < floor.width(); ++x) {
            darkest = std::min(darkest, lightness(floor.pixel(x, y)));
            brightest = std::max(brightest, lightness(floor.pixel(x, y)));
        }
    }
    EXPECT_LE(brightest - darkest, 12.0);
}

INSTANTIATE_TEST_SUITE_P(OfEachCourt, Floors,
                         ::testing::Values("picTparket.png", "picTbigParket.png", "court_texture.png"));

TEST(FloorBoards, DifferByAtMostFourPerCentOfLightness) {
    const QImage floor = committed("picTparket.png");
    double darkest = 100.0;
    double brightest = 0.0;
    for (int board = 0; board < 30; ++board) {
        for (int top = 0; top + 20 < floor.height(); top += 20) {
            double sum = 0.0;
            for (int i = 0; i < 20; ++i) {
                sum += lightness(floor.pixel(board * 12 + 6, top + i));
            }
            darkest = std::min(darkest, sum / 20);
            brightest = std::max(brightest, sum / 20);
        }
    }
    EXPECT_LE(brightest - darkest, 4.0);
    EXPECT_GE(brightest - darkest, 1.0) << "each board has its own tone";
}

TEST(FloorBoards, RunAlongTheCourt) {
    // Seams lie between boards twelve pixels wide: columns on the half court, rows on the whole one.
    const QImage half = committed("picTparket.png");
    const QImage whole = committed("picTbigParket.png");
    int columns = 0;
    int rows = 0;
    for (int i = 0; i < 200; ++i) {
        columns += luminance(half.pixel(24, i)) < luminance(half.pixel(26, i)) ? 1 : 0;
        rows += luminance(whole.pixel(i, 24)) < luminance(whole.pixel(i, 26)) ? 1 : 0;
    }
    EXPECT_GE(columns, 180);
    EXPECT_GE(rows, 180);
}

} // namespace zeltrona::art
