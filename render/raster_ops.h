#pragma once

#include <cstddef>
#include <cstdint>

namespace zeltrona::render {

/// Raster operations by what they do to each bit: destination D, source S.
enum class RasterOp : std::uint32_t {
    SrcCopy = 0xCC0020,    ///< S
    SrcAnd = 0x8800C6,     ///< D and S
    SrcPaint = 0xEE0086,   ///< D or S
    MergePaint = 0xBB0226, ///< D or not S
    DstInvert = 0x550009   ///< not D
};

/// Pixels are 32-bit words 0xAARRGGBB; the top byte takes no part in drawing and always stays full.
inline constexpr std::uint32_t kOpaque = 0xFF000000U;

/// The operation on one pixel.
constexpr std::uint32_t applyRasterOp(RasterOp op, std::uint32_t dest, std::uint32_t source) {
    switch (op) {
    case RasterOp::SrcCopy:
        return source | kOpaque;
    case RasterOp::SrcAnd:
        return (dest & source) | kOpaque;
    case RasterOp::SrcPaint:
        return dest | source | kOpaque;
    case RasterOp::MergePaint:
        return dest | ~source | kOpaque;
    case RasterOp::DstInvert:
        return ~dest | kOpaque;
    }
    return dest;
}

/// The operation on `count` neighbouring pixels. The two runs either are the same or do not overlap.
void rasterRun(RasterOp op, std::uint32_t* dest, const std::uint32_t* source, std::size_t count);

/// A sprite of two shapes in their colours, cut out by a mask: black on white, three runs of one length.
struct SpriteRun {
    const std::uint32_t* lower = nullptr; ///< covered by `upper` where both are black
    const std::uint32_t* upper = nullptr;
    const std::uint32_t* mask = nullptr;
    std::uint32_t lowerPixel = 0;
    std::uint32_t upperPixel = 0;
};

/// Puts the sprite on `count` neighbouring pixels: its colours cut by their inverted shapes onto black, the
/// upper over the lower, then SrcAnd with the mask and SrcPaint with the sprite. Reason: step by step this
/// takes fifteen walks over the pixels of each body, and one gives the same bits.
void spriteRun(std::uint32_t* dest, const SpriteRun& sprite, std::size_t count);

} // namespace zeltrona::render
