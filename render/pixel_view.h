#pragma once

#include "document/records.h"
#include "render/raster_ops.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace zeltrona::render {

/// Borrowed pixels to read.
struct ConstPixelView {
    const std::uint32_t* pixels = nullptr;
    int width = 0;
    int height = 0;
    std::ptrdiff_t stride = 0; ///< words from one row to the next

    const std::uint32_t* row(std::int64_t y) const {
        return pixels + static_cast<std::ptrdiff_t>(y) * stride;
    }
};

/// Borrowed pixels to draw on. All shapes are drawn through one, and clip themselves to it: a coordinate may
/// be any number, and the work done is bounded by the view's own size.
struct PixelView {
    std::uint32_t* pixels = nullptr;
    int width = 0;
    int height = 0;
    std::ptrdiff_t stride = 0;

    std::uint32_t* row(std::int64_t y) const { return pixels + static_cast<std::ptrdiff_t>(y) * stride; }
    bool contains(std::int64_t x, std::int64_t y) const {
        return x >= 0 && y >= 0 && x < width && y < height;
    }
};

/// A place cut to a whole number; one far beyond any board stays at the far end of what 64 bits hold.
inline std::int64_t wholeOf(double value) {
    constexpr double kFar = 4e18;
    return static_cast<std::int64_t>(value > kFar ? kFar : value > -kFar ? value : -kFar);
}

// Whole numbers at or below, and at or above, a place. The library's own are calls on machines of the
// baseline, and strokes ask for them at every row.
inline std::int64_t floorOf(double value) {
    const std::int64_t whole = wholeOf(value);
    return whole - (value < static_cast<double>(whole) ? 1 : 0);
}
inline std::int64_t ceilOf(double value) {
    const std::int64_t whole = wholeOf(value);
    return whole + (value > static_cast<double>(whole) ? 1 : 0);
}

/// 0x00BBGGRR as a pixel; bits above the colour do not count.
std::uint32_t pixelOf(document::Color color);
/// The colour of a pixel, 0x00BBGGRR.
document::Color colorOf(std::uint32_t pixel);

void fillAll(const PixelView& view, std::uint32_t pixel);
/// Draws the pixel when it lies in the view.
inline void setPixel(const PixelView& view, std::int64_t x, std::int64_t y, std::uint32_t pixel) {
    if (view.contains(x, y)) {
        view.row(y)[x] = pixel;
    }
}
/// Draws row `y` from `left` to `right`, both included; nothing when right < left.
inline void fillSpan(const PixelView& view, std::int64_t y, std::int64_t left, std::int64_t right,
                     std::uint32_t pixel) {
    if (y < 0 || y >= view.height) {
        return;
    }
    std::uint32_t* const row = view.row(y);
    const std::int64_t last = std::min<std::int64_t>(right, view.width - 1);
    for (std::int64_t x = std::max<std::int64_t>(left, 0); x <= last; ++x) {
        row[x] = pixel;
    }
}

/// A rectangle of a copy: where it goes, its size, and where it comes from.
struct BlockCopy {
    std::int64_t x = 0;
    std::int64_t y = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;
    std::int64_t sourceX = 0;
    std::int64_t sourceY = 0;
};
/// Combines the rectangle of `source` with the view; what falls outside either is left out.
void copyBlock(const PixelView& view, const ConstPixelView& source, BlockCopy block, RasterOp op);

/// Two shapes and a mask of one size, and the colours of the shapes.
struct SpriteShapes {
    ConstPixelView lower;
    ConstPixelView upper;
    ConstPixelView mask;
    std::uint32_t lowerPixel = 0;
    std::uint32_t upperPixel = 0;
};
/// Puts the sprite's left top corner at (x, y): spriteRun on each row that the view shows.
void paintSprite(const PixelView& view, std::int64_t x, std::int64_t y, const SpriteShapes& sprite);

} // namespace zeltrona::render
