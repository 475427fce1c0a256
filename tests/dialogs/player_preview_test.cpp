#include "dialogs/player_preview.h"

#include <gtest/gtest.h>

namespace zeltrona::dialogs {
namespace {

constexpr Color kRed = 0x0000FF;
constexpr Color kBlue = 0xFF0000;
constexpr Color kGrey = 0xC0C0C0;

bool shows(const QImage& image, QRgb color) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if ((image.pixel(x, y) & 0xFFFFFFU) == (color & 0xFFFFFFU)) {
                return true;
            }
        }
    }
    return false;
}

TEST(PlayerPreview, CircleHasRadiusTenAroundItsCentre) {
    const QImage image = circlePreview({}, kRed, 0xFFFFFF, kGrey);
    EXPECT_EQ(image.size(), QSize(26, 26));
    EXPECT_EQ(image.pixel(13, 13), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(13 - 9, 13), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(13 - 11, 13), qRgb(192, 192, 192));
    EXPECT_EQ(image.pixel(13, 13 + 11), qRgb(192, 192, 192));
}

TEST(PlayerPreview, CircleShowsItsLabelInTheLabelColour) {
    EXPECT_FALSE(shows(circlePreview({}, kRed, 0xFFFFFF, kGrey), qRgb(255, 255, 255)));
    EXPECT_TRUE(shows(circlePreview(QStringLiteral("7"), kRed, 0xFFFFFF, kGrey), qRgb(255, 255, 255)));
}

TEST(PlayerPreview, BodyShowsSkinAndSuitEachInItsRegion) {
    const QImage image = composeBody(0x00FF00, kBlue);
    EXPECT_EQ(image.size(), QSize(26, 26));
    EXPECT_TRUE(shows(image, qRgb(0, 255, 0)));
    EXPECT_TRUE(shows(image, qRgb(0, 0, 255)));
    EXPECT_FALSE(shows(composeBody(0x00FF00, kRed), qRgb(0, 0, 255)));
}

TEST(PlayerPreview, BodiesOfOneColourDifferNowhereElse) {
    const QImage one = composeBody(0x00FF00, kBlue);
    const QImage other = composeBody(0x00FF00, kRed);
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y)) {
                EXPECT_EQ(one.pixel(x, y), qRgb(0, 0, 255)) << x << ',' << y;
                EXPECT_EQ(other.pixel(x, y), qRgb(255, 0, 0)) << x << ',' << y;
            }
        }
    }
}

} // namespace
} // namespace zeltrona::dialogs
