#include "assets/resources.h"
#include "render/board_art.h"
#include "render/board_surface.h"
#include "tests/render/board_fixture.h"

#include <gtest/gtest.h>

namespace zeltrona::render {
namespace {

BoardArt loadedArt() {
    assets::initResources();
    return loadBoardArt();
}

bool isTwoToned(const QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (pixel != qRgb(0, 0, 0) && pixel != qRgb(255, 255, 255)) {
                return false;
            }
        }
    }
    return true;
}

TEST(BoardArt, HasTheSizesThatDrawingReliesOn) {
    const BoardArt art = loadedArt();
    EXPECT_EQ(art.picT.size(), QSize(361, 1980));
    EXPECT_EQ(art.picTblack.size(), QSize(361, 1980));
    EXPECT_EQ(art.picTbig.size(), QSize(530, 870));
    EXPECT_EQ(art.picTbigBlack.size(), QSize(530, 870));
    EXPECT_EQ(art.picTparket.size(), QSize(360, 329));
    EXPECT_EQ(art.picTbigParket.size(), QSize(530, 290));
    EXPECT_EQ(art.pKrugMask.size(), QSize(26, 26));
    EXPECT_EQ(art.pBall.size(), QSize(26, 26));
    for (const QImage& image : art.ilpskin) {
        EXPECT_EQ(image.size(), QSize(50, 50));
    }
    for (const QImage& image : art.ilptshirt) {
        EXPECT_EQ(image.size(), QSize(50, 50));
    }
    for (const QImage& image : art.ilpmask) {
        EXPECT_EQ(image.size(), QSize(50, 50));
    }
}

TEST(BoardArt, IsHeldAsDrawingReadsIt) {
    const BoardArt art = loadedArt();
    for (const QImage* image : {&art.picT, &art.picTblack, &art.picTparket, &art.pBall, &art.ilpskin[0]}) {
        EXPECT_EQ(image->format(), QImage::Format_RGB32);
    }
}

TEST(BoardArt, MasksAreBlackAndWhite) {
    const BoardArt art = loadedArt();
    EXPECT_TRUE(isTwoToned(art.picTblack));
    EXPECT_TRUE(isTwoToned(art.picTbigBlack));
    EXPECT_TRUE(isTwoToned(art.pKrugMask));
    for (std::size_t i = 0; i < 24; ++i) {
        EXPECT_TRUE(isTwoToned(art.ilpskin[i]));
        EXPECT_TRUE(isTwoToned(art.ilpmask[i]));
        EXPECT_TRUE(isTwoToned(art.ilptshirt[i % 6]));
    }
}

TEST(BoardArt, BallFillsItsMaskAndNothingBeyond) {
    const BoardArt art = loadedArt();
    BoardSurface mask(26, 26);
    mask.circle(13, 13, 7, 0, true);
    for (int y = 0; y < 26; ++y) {
        for (int x = 0; x < 26; ++x) {
            const bool lit = (art.pBall.pixel(x, y) & 0xFFFFFFU) != 0;
            if (mask.point(x, y) == kWhite) {
                EXPECT_FALSE(lit) << "beyond the mask it would mix with the floor, at " << x << ',' << y;
            }
        }
    }
    EXPECT_NE(art.pBall.pixel(13, 13) & 0xFFFFFFU, 0U);
}

TEST(BoardArt, SkinAndShirtLieWithinTheBodysOutline) {
    const BoardArt art = loadedArt();
    for (std::size_t i = 0; i < 24; ++i) {
        for (int y = 0; y < 50; ++y) {
            for (int x = 0; x < 50; ++x) {
                const bool inside = (art.ilpmask[i].pixel(x, y) & 0xFFU) == 0;
                const bool skin = (art.ilpskin[i].pixel(x, y) & 0xFFU) == 0;
                const bool shirt = (art.ilptshirt[i % 6].pixel(x, y) & 0xFFU) == 0;
                ASSERT_TRUE(inside || (!skin && !shirt)) << "image " << i + 1 << " at " << x << ',' << y;
            }
        }
    }
}

} // namespace
} // namespace zeltrona::render
