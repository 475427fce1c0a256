#include "tests/art/pictures.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace zeltrona::art {

namespace {

/// A half court with the basket at the top, measured with a ruler: everything is found in the picture again
/// from the lines around it, in pixels.
class Ruler {
public:
    explicit Ruler(int set) : m_court(band(committed("picT.png"), set * 660, 360, 330)) {
        while (!black(m_court, m_left, 165)) {
            ++m_left;
        }
        while (!black(m_court, 60, m_top)) {
            ++m_top;
        }
        m_left += 2;
        m_top += 2;
    }

    /// First column of the playing area, first row of it; lines around it are two thick.
    int left() const { return m_left; }
    int top() const { return m_top; }
    double width() const { return 360.0 - 2 * m_left; }
    const QImage& court() const { return m_court; }

    /// Distance from the end line to the far edge of the last black pixel of a column, searched from `from`
    /// on.
    int farEdgeInColumn(int x, int from, int to) const {
        int edge = 0;
        for (int y = from; y < to; ++y) {
            edge = black(m_court, x, m_top + y) ? y + 1 : edge;
        }
        return edge;
    }

    /// Distance from the middle to the far edge of the line that is met first from outside at this row.
    int outerEdgeInRow(int along, int fromMiddle) const {
        for (int across = fromMiddle; across > 0; --across) {
            if (black(m_court, 180 + across - 1, m_top + along)) {
                return across;
            }
        }
        return 0;
    }

private:
    QImage m_court;
    int m_left = 0;
    int m_top = 0;
};

struct Facts {
    int set;
    double length, width, basket, board, boardWidth, lane, laneAtLine, laneAtEnd, circle, arc, sideGap;
};

std::ostream& operator<<(std::ostream& out, const Facts& facts) {
    return out << "set " << facts.set;
}

class CourtFactsOnTheSheet : public ::testing::TestWithParam<Facts> {
protected:
    Ruler ruler{GetParam().set};
    double scale = ruler.width() / GetParam().width;
};

} // namespace

TEST_P(CourtFactsOnTheSheet, PutTheMiddleLineWhereTheCourtIsHalved) {
    const int middle = ruler.farEdgeInColumn(60, 250, 330);
    EXPECT_NEAR(middle - 1, GetParam().length / 2 * scale, 1.0);
}

TEST_P(CourtFactsOnTheSheet, PutTheFreeThrowLineAtTheEndOfTheLane) {
    // Beside the half circle on either side of the lane's middle, where only this line is met.
    const double lane = GetParam().lane * scale;
    const int column = 180 + static_cast<int>(GetParam().laneAtLine / 2 * scale) - 3;
    const int from = static_cast<int>(lane) - 8;
    EXPECT_NEAR(ruler.farEdgeInColumn(column, from, static_cast<int>(lane) + 3), lane, 1.0);
}

TEST_P(CourtFactsOnTheSheet, MakeTheLaneAsWideAsTheRuleSays) {
    const int end = 0;
    const int line = static_cast<int>(GetParam().lane * scale) - 2;
    const int wide = static_cast<int>(GetParam().laneAtEnd / 2 * scale) + 6;
    EXPECT_NEAR(ruler.outerEdgeInRow(end, wide), GetParam().laneAtEnd / 2 * scale, 1.0);
    EXPECT_NEAR(ruler.outerEdgeInRow(line, wide), GetParam().laneAtLine / 2 * scale, 1.0);
}

TEST_P(CourtFactsOnTheSheet, PutTheBoardInFrontOfTheEndLine) {
    const int board = static_cast<int>(std::lround(GetParam().board * scale));
    const int half = static_cast<int>(std::lround(GetParam().boardWidth / 2 * scale));
    EXPECT_EQ(ruler.farEdgeInColumn(180 + half - 2, board - 6, board + 4), board);
    EXPECT_TRUE(black(ruler.court(), 180 + half - 1, ruler.top() + board - 1));
    EXPECT_FALSE(black(ruler.court(), 180 + half, ruler.top() + board - 1));
}

TEST_P(CourtFactsOnTheSheet, HangTheRingBeforeTheBoardWithItsNeck) {
    const int basket = static_cast<int>(std::lround(GetParam().basket * scale));
    const int board = static_cast<int>(std::lround(GetParam().board * scale));
    const double radius = (GetParam().length < 50 ? 0.225 : 0.75) * scale;
    EXPECT_NEAR(ruler.farEdgeInColumn(180, basket, basket + 10) - basket, radius, 1.0);
    EXPECT_FALSE(black(ruler.court(), 180, ruler.top() + basket)) << "the ring is open";
    for (int y = board; y < basket - radius + 1; ++y) {
        EXPECT_TRUE(black(ruler.court(), 180, ruler.top() + y)) << "the neck at " << y;
    }
}

TEST_P(CourtFactsOnTheSheet, BendTheThreePointLineAroundTheBasket) {
    const int basket = static_cast<int>(std::lround(GetParam().basket * scale));
    for (int degrees = 0; degrees <= 60; degrees += 5) {
        const double angle = degrees * 3.14159265 / 180;
        double edge = 0;
        for (double r = GetParam().arc * scale - 12; r < GetParam().arc * scale + 12; r += 0.25) {
            const int x = static_cast<int>(std::floor(180 + r * std::sin(angle)));
            const int y = static_cast<int>(std::floor(ruler.top() + basket + r * std::cos(angle)));
            edge = black(ruler.court(), x, y) ? r : edge;
        }
        EXPECT_NEAR(edge, GetParam().arc * scale, 1.0) << degrees;
    }
}

TEST_P(CourtFactsOnTheSheet, RunTheThreePointLineBesideTheSideLine) {
    const double half = (GetParam().width / 2 - GetParam().sideGap) * scale;
    EXPECT_NEAR(ruler.outerEdgeInRow(8, static_cast<int>(GetParam().width / 2 * scale) - 2), half, 1.0);
}

TEST_P(CourtFactsOnTheSheet, DrawTheCirclesToScale) {
    const double radius = GetParam().circle * scale;
    const int line = static_cast<int>(std::lround(GetParam().lane * scale));
    const int middle = static_cast<int>(std::lround(GetParam().length / 2 * scale));
    EXPECT_NEAR(ruler.farEdgeInColumn(180, line + 10, line + static_cast<int>(radius) + 3) - (line - 1),
                radius, 1.0);
    EXPECT_NEAR(ruler.outerEdgeInRow(middle - 3, static_cast<int>(radius) + 9), radius, 1.0);
}

TEST_P(CourtFactsOnTheSheet, DrawTheLinesTwoPixelsThick) {
    const QImage& court = ruler.court();
    EXPECT_FALSE(black(court, 60, ruler.top() - 3));
    EXPECT_TRUE(black(court, 60, ruler.top() - 2));
    EXPECT_TRUE(black(court, 60, ruler.top() - 1));
    EXPECT_FALSE(black(court, 60, ruler.top()));
}

INSTANTIATE_TEST_SUITE_P(OfEachSet, CourtFactsOnTheSheet,
                         ::testing::Values(Facts{0, 28, 15, 1.575, 1.2, 1.8, 5.8, 4.9, 4.9, 1.8, 6.75, 0.9},
                                           Facts{1, 28, 15, 1.575, 1.2, 1.8, 5.8, 3.6, 6.0, 1.8, 6.25, 1.25},
                                           Facts{2, 94, 50, 5.25, 4, 6, 19, 16, 16, 6, 23.75, 3}),
                         [](const auto& row) { return "Set" + std::to_string(row.param.set); });

TEST(CourtFactsOfOneSet, TodaysHalfCircleUnderTheBasketHasItsRadius) {
    const Ruler ruler(0);
    const double scale = ruler.width() / 15.0;
    const int basket = static_cast<int>(std::lround(1.575 * scale));
    EXPECT_NEAR(ruler.farEdgeInColumn(180, basket + 12, basket + 40) - basket, 1.25 * scale, 1.0);
}

TEST(CourtFactsOfOneSet, NorthAmericanArcUnderTheBasketHasItsRadius) {
    const Ruler ruler(2);
    const double scale = ruler.width() / 50.0;
    const int basket = static_cast<int>(std::lround(5.25 * scale));
    EXPECT_NEAR(ruler.farEdgeInColumn(180, basket + 12, basket + 40) - basket, 4.0 * scale, 1.0);
}

TEST(CourtFactsOfOneSet, FormerSetHasNoArcUnderTheBasket) {
    const Ruler ruler(1);
    EXPECT_EQ(ruler.farEdgeInColumn(180, 35 + 12, 35 + 40), 0);
}

TEST(CourtFactsOfOneSet, TodaysFreeThrowCircleEndsAtItsLine) {
    const Ruler ruler(0);
    // The inner half would pass here, 40 pixels before the line.
    EXPECT_EQ(ruler.farEdgeInColumn(180, 80, 120), 0);
}

TEST(CourtFactsOfOneSet, InnerHalvesOfTheOthersAreDashed) {
    for (const int set : {1, 2}) {
        const Ruler ruler(set);
        const double scale = ruler.width() / (set == 1 ? 15.0 : 50.0);
        const double radius = (set == 1 ? 1.8 : 6.0) * scale - 1;
        const double line = (set == 1 ? 5.8 : 19.0) * scale - 1;
        int changes = 0;
        bool was = false;
        for (int step = 0; step <= 400; ++step) {
            const double angle = 3.14159265 * (0.08 + 0.84 * step / 400.0);
            const bool is =
                black(ruler.court(), static_cast<int>(std::floor(180 + radius * std::cos(angle))),
                      static_cast<int>(std::floor(ruler.top() + line - radius * std::sin(angle))));
            changes += is == was ? 0 : 1;
            was = is;
        }
        EXPECT_GE(changes, 8) << set;
    }
}

TEST(CourtFactsOfOneSet, NorthAmericanLaneHasItsInnerLines) {
    const Ruler ruler(2);
    const double scale = ruler.width() / 50.0;
    EXPECT_NEAR(ruler.outerEdgeInRow(10, static_cast<int>(8 * scale) - 3), 6 * scale, 1.0);
}

TEST(CourtFactsOfOneSet, NorthAmericanCentreHasTwoCircles) {
    const Ruler ruler(2);
    const double scale = ruler.width() / 50.0;
    const int middle = static_cast<int>(std::lround(47 * scale));
    EXPECT_NEAR(ruler.outerEdgeInRow(middle - 3, static_cast<int>(2 * scale) + 6), 2 * scale, 1.0);
}

TEST(CourtFactsOfOneSet, NeutralBlocksStandOutsideTheLane) {
    const Ruler ruler(0);
    const double scale = ruler.width() / 15.0;
    const int outside = static_cast<int>(std::lround(2.45 * scale));
    EXPECT_TRUE(black(ruler.court(), 180 + outside, ruler.top() + static_cast<int>(2.8 * scale)));
    EXPECT_FALSE(black(ruler.court(), 180 + outside, ruler.top() + static_cast<int>(2.3 * scale)));
    EXPECT_FALSE(black(ruler.court(), 180 + outside, ruler.top() + static_cast<int>(3.4 * scale)));
}

} // namespace zeltrona::art
