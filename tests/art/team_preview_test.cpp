#include "tests/art/pictures.h"

#include <gtest/gtest.h>

namespace zeltrona::art {

namespace {

struct Parts {
    QImage base = committed("config_base.png");
    QImage skinRegion = committed("config_skin_region.png");
    QImage skinMask = committed("config_skin_mask.png");
    QImage suitRegion = committed("config_suit_region.png");
    QImage suitMask = committed("config_suit_mask.png");
};

} // namespace

TEST(TeamPreviewParts, MasksAreTheReverseOfTheirRegions) {
    const Parts parts;
    for (int y = 0; y < 26; ++y) {
        for (int x = 0; x < 26; ++x) {
            EXPECT_EQ(black(parts.skinRegion, x, y), white(parts.skinMask, x, y));
            EXPECT_EQ(white(parts.skinRegion, x, y), black(parts.skinMask, x, y));
            EXPECT_EQ(black(parts.suitRegion, x, y), white(parts.suitMask, x, y));
            EXPECT_EQ(white(parts.suitRegion, x, y), black(parts.suitMask, x, y));
        }
    }
}

TEST(TeamPreviewParts, RegionsLieApartAndOnTheDarkOfTheBase) {
    const Parts parts;
    for (const QPoint& at : blackPixels(parts.skinMask)) {
        EXPECT_TRUE(white(parts.suitMask, at.x(), at.y()));
        EXPECT_TRUE(black(parts.base, at.x(), at.y()));
    }
    for (const QPoint& at : blackPixels(parts.suitMask)) {
        EXPECT_TRUE(black(parts.base, at.x(), at.y()));
    }
}

TEST(TeamPreviewParts, GiveSkinAndSuitRoomToBeSeen) {
    const Parts parts;
    EXPECT_GE(blackPixels(parts.skinMask).size(), 60U);
    EXPECT_GE(blackPixels(parts.suitMask).size(), 80U);
    EXPECT_FALSE(black(parts.base, 0, 0)) << "floor around the player";
}

} // namespace zeltrona::art
