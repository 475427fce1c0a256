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

} // namespace zeltrona::render
