#include "render/pixel_view.h"
#include "tests/render/canvas.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace zeltrona::render {
namespace {

constexpr std::int64_t kFar = std::numeric_limits<std::int32_t>::max();

TEST(Pixels, AreColoursWithRedAndBlueExchanged) {
    EXPECT_EQ(pixelOf(0x00BBCC11), 0xFF11CCBBU);
    EXPECT_EQ(colorOf(0xFF11CCBBU), 0x00BBCC11);
    EXPECT_EQ(pixelOf(255), 0xFFFF0000U) << "255 is red";
}

TEST(Pixels, LeaveBitsBeyondTheColourOut) {
    EXPECT_EQ(pixelOf(0x7F0000FF), 0xFFFF0000U);
    EXPECT_EQ(pixelOf(-1), 0xFFFFFFFFU);
    EXPECT_EQ(colorOf(0xFF000000U), 0);
}

TEST(PixelView, SetsOnlyPixelsInside) {
    Canvas canvas(3, 2);
    for (const std::int64_t x : {std::int64_t{-1}, std::int64_t{3}, kFar, -kFar}) {
        setPixel(canvas.view(), x, 0, Canvas::kBlack);
        setPixel(canvas.view(), 0, x, Canvas::kBlack);
    }
    EXPECT_EQ(canvas.count(), 0);
    setPixel(canvas.view(), 2, 1, Canvas::kBlack);
    EXPECT_EQ(canvas.text(), "\n...\n..#\n");
}

TEST(PixelView, SpansIncludeBothEndsAndAreClipped) {
    Canvas canvas(5, 4);
    fillSpan(canvas.view(), 0, 1, 3, Canvas::kBlack);
    fillSpan(canvas.view(), 1, -kFar, 1, Canvas::kBlack);
    fillSpan(canvas.view(), 2, 3, kFar, Canvas::kBlack);
    fillSpan(canvas.view(), 3, 3, 2, Canvas::kBlack);
    fillSpan(canvas.view(), -1, 0, 4, Canvas::kBlack);
    fillSpan(canvas.view(), 4, 0, 4, Canvas::kBlack);
    EXPECT_EQ(canvas.text(), "\n.###.\n##...\n...##\n.....\n");
}

TEST(PixelView, FillsEveryPixelButNotThePadding) {
    Canvas canvas(3, 2, 2);
    fillAll(canvas.view(), Canvas::kBlack);
    EXPECT_EQ(canvas.count(), 6);
    EXPECT_EQ(canvas.source().row(0)[3], Canvas::kWhite);
}

Canvas numbered(int width, int height, int padding = 0) {
    Canvas canvas(width, height, padding);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            canvas.view().row(y)[x] = kOpaque | static_cast<std::uint32_t>(y * 16 + x);
        }
    }
    return canvas;
}

TEST(CopyBlock, CutsToBothRectanglesAtEveryOffset) {
    const Canvas source = numbered(5, 4, 1);
    for (int offset = -7; offset <= 7; ++offset) {
        for (int from = -6; from <= 6; ++from) {
            Canvas dest(6, 5);
            copyBlock(dest.view(), source.source(), {offset, offset, 4, 3, from, from}, RasterOp::SrcCopy);
            for (int y = 0; y < 5; ++y) {
                for (int x = 0; x < 6; ++x) {
                    const int sx = x - offset + from;
                    const int sy = y - offset + from;
                    const bool copied = x >= offset && x < offset + 4 && y >= offset && y < offset + 3
                                        && sx >= 0 && sx < 5 && sy >= 0 && sy < 4;
                    ASSERT_EQ(dest.source().row(y)[x], copied ? source.source().row(sy)[sx] : Canvas::kWhite)
                        << "at " << x << ',' << y << " offset " << offset << " from " << from;
                }
            }
        }
    }
}

TEST(CopyBlock, OfWholeRowsEqualsOneRowByRow) {
    const Canvas source = numbered(6, 4);
    Canvas whole(6, 4);
    Canvas rows(6, 4, 3);
    copyBlock(whole.view(), source.source(), {0, 1, 6, 3, 0, 0}, RasterOp::MergePaint);
    copyBlock(rows.view(), source.source(), {0, 1, 6, 3, 0, 0}, RasterOp::MergePaint);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 6; ++x) {
            EXPECT_EQ(whole.source().row(y)[x], rows.source().row(y)[x]);
        }
    }
}

TEST(CopyBlock, FarPlacesAndEmptySizesCopyNothing) {
    const Canvas source = numbered(5, 4);
    Canvas dest(6, 5);
    for (const BlockCopy block : {BlockCopy{kFar, 0, 26, 26, 0, 0}, BlockCopy{-kFar - 1, 0, 26, 26, 0, 0},
                                  BlockCopy{0, -kFar - 1, 26, 26, 0, 0}, BlockCopy{0, 0, 26, 26, kFar, 0},
                                  BlockCopy{0, 0, 0, 4, 0, 0}, BlockCopy{0, 0, -3, 4, 0, 0}}) {
        copyBlock(dest.view(), source.source(), block, RasterOp::SrcCopy);
    }
    EXPECT_EQ(dest.text(), Canvas(6, 5).text());
}

TEST(WholeNumbers, AreThoseOfTheLibrary) {
    for (const double value :
         {0.0, 0.4, 0.5, 1.0, 2.999999, -0.1, -0.5, -1.0, -2.000001, 1e9 + 0.5, -1e12 - 0.5}) {
        EXPECT_EQ(static_cast<double>(floorOf(value)), std::floor(value));
        EXPECT_EQ(static_cast<double>(ceilOf(value)), std::ceil(value));
    }
}

TEST(PaintSprite, ShowsWhatLiesInTheViewAtEveryPlace) {
    Canvas shape(2, 2);
    fillAll(shape.view(), Canvas::kBlack);
    const SpriteShapes sprite{shape.source(), shape.source(), shape.source(), Canvas::kBlack, Canvas::kBlack};
    for (int y = -3; y <= 5; ++y) {
        for (int x = -3; x <= 5; ++x) {
            Canvas canvas(4, 4, 1);
            paintSprite(canvas.view(), x, y, sprite);
            const int columns = std::max(0, std::min(x + 2, 4) - std::max(x, 0));
            const int rows = std::max(0, std::min(y + 2, 4) - std::max(y, 0));
            EXPECT_EQ(canvas.count(), columns * rows) << x << ", " << y;
        }
    }
    Canvas canvas(4, 4);
    paintSprite(canvas.view(), kFar, -kFar, sprite);
    EXPECT_EQ(canvas.count(), 0);
}

} // namespace
} // namespace zeltrona::render
