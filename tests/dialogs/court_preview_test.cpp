#include "dialogs/court_preview.h"

#include <gtest/gtest.h>
#include <set>

namespace zeltrona::dialogs {
namespace {

int count(const QImage& image, QRgb color) {
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            found += (image.pixel(x, y) & 0xFFFFFFU) == (color & 0xFFFFFFU) ? 1 : 0;
        }
    }
    return found;
}

TEST(CourtPreview, StripPlacesFollowEachOther) {
    const StripPlace expected[] = {{0, 146},   {146, 146},  {292, 293},  {585, 146}, {731, 146},
                                   {877, 293}, {1170, 146}, {1316, 146}, {1462, 293}};
    for (int court = 1; court <= 9; ++court) {
        EXPECT_EQ(stripPlace(static_cast<std::int16_t>(court)), expected[court - 1]) << court;
    }
}

TEST(CourtPreview, BlackLinesLieOnTheColour) {
    const QImage image = courtPreview({1, 0x00FF00, false, false});
    EXPECT_EQ(image.size(), QSize(160, 146));
    EXPECT_GT(count(image, qRgb(0, 255, 0)), 10000);
    EXPECT_EQ(count(image, qRgb(255, 255, 255)), 0);
    EXPECT_LT(count(image, qRgb(0, 255, 0)), 160 * 146);
}

TEST(CourtPreview, WhiteLinesLieOnTheColour) {
    const QImage image = courtPreview({1, 0x800000, false, true});
    EXPECT_GT(count(image, qRgb(255, 255, 255)), 100);
    EXPECT_GT(count(image, qRgb(0, 0, 128)), 10000);
}

TEST(CourtPreview, TextureTakesThePlaceOfTheColour) {
    EXPECT_EQ(courtPreview({1, 0x00FF00, true, false}), courtPreview({1, 0x0000FF, true, false}));
    EXPECT_EQ(count(courtPreview({1, 0x00FF00, true, false}), qRgb(0, 255, 0)), 0);
}

TEST(CourtPreview, EveryCourtLooksDifferent) {
    std::set<std::string> seen;
    for (int court = 1; court <= 9; ++court) {
        const QImage image = courtPreview({static_cast<std::int16_t>(court), 0xFFFFFF, false, false});
        seen.emplace(reinterpret_cast<const char*>(image.constBits()),
                     static_cast<std::size_t>(image.sizeInBytes()));
    }
    EXPECT_EQ(seen.size(), 9U);
}

TEST(CourtPreview, WholeCourtKeepsItsLinesWhenBroughtDown) {
    const QImage image = courtPreview({3, 0xFFFFFF, false, false});
    bool everyColumnInked = true;
    for (int x = 30; x < 130; ++x) {
        bool inked = false;
        for (int y = 0; y < image.height(); ++y) {
            inked = inked || qGray(image.pixel(x, y)) < 128;
        }
        everyColumnInked = everyColumnInked && inked;
    }
    EXPECT_TRUE(everyColumnInked);
}

} // namespace
} // namespace zeltrona::dialogs
