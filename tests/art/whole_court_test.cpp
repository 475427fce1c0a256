#include "tests/art/pictures.h"

#include <cmath>
#include <gtest/gtest.h>

namespace zeltrona::art {

namespace {

struct Facts {
    int set;
    double length, width, lane, circle, arc, basket;
};

std::ostream& operator<<(std::ostream& out, const Facts& facts) {
    return out << "set " << facts.set;
}

class WholeCourts : public ::testing::TestWithParam<Facts> {
protected:
    /// Length of white from the middle of the picture's edge to the first line, and of the line.
    static int marginOf(const QImage& court, QPoint start, QPoint step) {
        int margin = 0;
        while (!black(court, start.x(), start.y())) {
            start += step;
            ++margin;
        }
        return margin;
    }

    QImage court = band(committed("picTbig.png"), GetParam().set * 290, 530, 290);
    int side = marginOf(court, {200, 0}, {0, 1}) + 2;
    int end = marginOf(court, {0, 100}, {1, 0}) + 2;
    double scale = (290.0 - 2 * side) / GetParam().width;
};

} // namespace

TEST_P(WholeCourts, KeepTheirProportion) {
    EXPECT_NEAR((530.0 - 2 * end) / scale, GetParam().length, 1.0 / scale);
}

TEST_P(WholeCourts, FillTheirPictureWithEqualMargins) {
    EXPECT_LE(std::abs(side - end), 1);
    EXPECT_LE(side, 10);
}

TEST_P(WholeCourts, HaveTheMiddleLineInTheMiddle) {
    EXPECT_TRUE(black(court, 264, 40));
    EXPECT_TRUE(black(court, 265, 40));
    EXPECT_FALSE(black(court, 263, 40));
    EXPECT_FALSE(black(court, 266, 40));
}

TEST_P(WholeCourts, HaveTheCentreCircleToScale) {
    int edge = 0;
    for (int x = 266; x < 330; ++x) {
        edge = black(court, x, 145) ? x + 1 : edge;
    }
    EXPECT_NEAR(edge - 265, GetParam().circle * scale, 1.0);
}

TEST_P(WholeCourts, HaveTheThreePointLineToScale) {
    int edge = 0;
    for (int x = 120; x < 200; ++x) {
        edge = black(court, x, 145) ? x + 1 : edge;
    }
    EXPECT_NEAR(edge - end, (GetParam().basket + GetParam().arc) * scale, 1.5);
}

INSTANTIATE_TEST_SUITE_P(OfEachSet, WholeCourts,
                         ::testing::Values(Facts{0, 28, 15, 5.8, 1.8, 6.75, 1.575},
                                           Facts{1, 28, 15, 5.8, 1.8, 6.25, 1.575},
                                           Facts{2, 94, 50, 19, 6, 23.75, 5.25}),
                         [](const auto& row) { return "Set" + std::to_string(row.param.set); });

TEST(PreviewStrips, AreEachOthersReverse) {
    const QImage dark = committed("court_strip_black.png");
    const QImage light = committed("court_strip_white.png");
    for (int y = 0; y < dark.height(); ++y) {
        for (int x = 0; x < dark.width(); ++x) {
            ASSERT_EQ(black(dark, x, y), white(light, x, y)) << x << ' ' << y;
        }
    }
}

TEST(PreviewStrips, HaveEachCourtInItsRows) {
    const QImage strip = committed("court_strip_black.png");
    const int tops[] = {0, 146, 292, 585, 731, 877, 1170, 1316, 1462, 1755};
    for (int i = 0; i < 9; ++i) {
        const QImage court = band(strip, tops[i], 160, tops[i + 1] - tops[i]);
        EXPECT_GT(blackPixels(court).size(), 800U) << i;
        EXPECT_FALSE(isOpenBetween(court, {0, 0}, {40, court.height() / 2}, Steps::Sides)) << i;
    }
}

TEST(PreviewStrips, StandTheRowsOfWholeCourtsTwice) {
    const QImage strip = committed("court_strip_black.png");
    for (const int top : {292, 877, 1462}) {
        for (int row = 0; row < 146; ++row) {
            for (int x = 0; x < 160; ++x) {
                ASSERT_EQ(black(strip, x, top + 2 * row), black(strip, x, top + 2 * row + 1))
                    << top << ' ' << row;
            }
        }
    }
}

} // namespace zeltrona::art
