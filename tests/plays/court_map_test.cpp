#include "tools/plays/court_map.h"

#include <QImage>

#include <gtest/gtest.h>

namespace zeltrona::plays {
namespace {

/// The lines of courts as they stand in the program.
QImage sheetOf(bool isWhole) {
    return QImage(QStringLiteral(ZELTRONA_SOURCE_DIR "/assets/art/")
                  + (isWhole ? "picTbigBlack.png" : "picTblack.png"));
}

int bandTop(int court) {
    const int family = (court - 1) / 3;
    return court % 3 == 0 ? family * 290 : (family * 2 + (court % 3 == 1 ? 0 : 1)) * 330;
}

/// Whether a line of the court runs within a pixel and a half of the place.
bool hasLineAt(const QImage& sheet, int court, Place place) {
    const document::PointF p = CourtMap(static_cast<std::int16_t>(court)).at(place);
    for (int y = static_cast<int>(p.y) - 2; y <= static_cast<int>(p.y) + 1; ++y) {
        for (int x = static_cast<int>(p.x) - 2; x <= static_cast<int>(p.x) + 1; ++x) {
            if (sheet.valid(x, y + bandTop(court)) && qGray(sheet.pixel(x, y + bandTop(court))) == 0) {
                return true;
            }
        }
    }
    return false;
}

TEST(CourtMap, PutsPlacesWhereTheLinesOfEveryCourtAre) {
    constexpr double kFoot = 0.3048;
    for (int court = 1; court <= 9; ++court) {
        const bool isAmerican = court >= 7;
        const QImage sheet = sheetOf(court % 3 == 0);
        ASSERT_FALSE(sheet.isNull());
        const double board = isAmerican ? 4 * kFoot : 1.2;
        const double freeThrow = isAmerican ? 19 * kFoot : 5.8;
        const double side = isAmerican ? 25 * kFoot : 7.5;
        const double middle = isAmerican ? 47 * kFoot : 14;
        EXPECT_TRUE(hasLineAt(sheet, court, {0.6, board})) << "board of court " << court;
        EXPECT_TRUE(hasLineAt(sheet, court, {-1, freeThrow})) << "free-throw line of court " << court;
        EXPECT_TRUE(hasLineAt(sheet, court, {side, 7})) << "side line of court " << court;
        EXPECT_TRUE(hasLineAt(sheet, court, {-6, 0})) << "end line of court " << court;
        EXPECT_TRUE(hasLineAt(sheet, court, {-3, middle})) << "middle line of court " << court;
        EXPECT_FALSE(hasLineAt(sheet, court, {-3, 12})) << "open floor of court " << court;
    }
}

TEST(CourtMap, KeepsRightOnTheRightOfWhoFacesTheBasket) {
    const auto right = [](std::int16_t court) {
        const document::PointF middle = CourtMap(court).at({0, 6});
        const document::PointF p = CourtMap(court).at({2, 6});
        return document::PointF{p.x - middle.x, p.y - middle.y};
    };
    EXPECT_GT(right(1).x, 0);
    EXPECT_LT(right(2).x, 0);
    EXPECT_GT(right(3).y, 0);
}

TEST(CourtMap, MeasuresInMetresOnEverySetOfMarkings) {
    EXPECT_DOUBLE_EQ(CourtMap(1).length(15), 336);
    EXPECT_DOUBLE_EQ(CourtMap(3).length(15), 276);
    EXPECT_DOUBLE_EQ(CourtMap(7).length(50 * 0.3048), 336);
    EXPECT_DOUBLE_EQ(CourtMap(9).length(50 * 0.3048), 272);
}

} // namespace
} // namespace zeltrona::plays
