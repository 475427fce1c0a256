#include "render/pixel_view.h"

#include <algorithm>

namespace zeltrona::render {

namespace {

constexpr std::uint32_t swapRedBlue(std::uint32_t word) {
    return (word & 0x00FF00U) | ((word & 0xFFU) << 16U) | ((word >> 16U) & 0xFFU);
}

/// Moves the start of one axis of a copy into both the view and the source, and cuts its length to both.
void clipAxis(std::int64_t& dest, std::int64_t& source, std::int64_t& length, int destSize, int sourceSize) {
    const std::int64_t skip = std::max<std::int64_t>({0, -dest, -source});
    dest += skip;
    source += skip;
    length = std::min({length - skip, destSize - dest, sourceSize - source});
}

} // namespace

std::uint32_t pixelOf(document::Color color) {
    return kOpaque | swapRedBlue(static_cast<std::uint32_t>(color));
}

document::Color colorOf(std::uint32_t pixel) {
    return static_cast<document::Color>(swapRedBlue(pixel));
}

void fillAll(const PixelView& view, std::uint32_t pixel) {
    for (int y = 0; y < view.height; ++y) {
        std::fill_n(view.row(y), view.width, pixel);
    }
}

void copyBlock(const PixelView& view, const ConstPixelView& source, BlockCopy block, RasterOp op) {
    clipAxis(block.x, block.sourceX, block.width, view.width, source.width);
    clipAxis(block.y, block.sourceY, block.height, view.height, source.height);
    if (block.width <= 0 || block.height <= 0) {
        return;
    }
    const auto width = static_cast<std::size_t>(block.width);
    const bool wholeRows = block.width == view.stride && block.width == source.stride;
    if (wholeRows) {
        rasterRun(op, view.row(block.y), source.row(block.sourceY),
                  width * static_cast<std::size_t>(block.height));
        return;
    }
    for (std::int64_t row = 0; row < block.height; ++row) {
        rasterRun(op, view.row(block.y + row) + block.x, source.row(block.sourceY + row) + block.sourceX,
                  width);
    }
}

void paintSprite(const PixelView& view, std::int64_t x, std::int64_t y, const SpriteShapes& sprite) {
    BlockCopy block{x, y, sprite.mask.width, sprite.mask.height};
    clipAxis(block.x, block.sourceX, block.width, view.width, sprite.mask.width);
    clipAxis(block.y, block.sourceY, block.height, view.height, sprite.mask.height);
    if (block.width <= 0) {
        return;
    }
    for (std::int64_t row = 0; row < block.height; ++row) {
        const auto from = [&block, row](const ConstPixelView& shape) {
            return shape.row(block.sourceY + row) + block.sourceX;
        };
        spriteRun(
            view.row(block.y + row) + block.x,
            {from(sprite.lower), from(sprite.upper), from(sprite.mask), sprite.lowerPixel, sprite.upperPixel},
            static_cast<std::size_t>(block.width));
    }
}

} // namespace zeltrona::render
