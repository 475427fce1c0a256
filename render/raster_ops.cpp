#include "render/raster_ops.h"

namespace zeltrona::render {

namespace {

// One loop to an operation, so that each becomes a loop over whole vector registers.
template<RasterOp Op> void runOf(std::uint32_t* dest, const std::uint32_t* source, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        dest[i] = applyRasterOp(Op, dest[i], source[i]);
    }
}

} // namespace

void rasterRun(RasterOp op, std::uint32_t* dest, const std::uint32_t* source, std::size_t count) {
    switch (op) {
    case RasterOp::SrcCopy:
        return runOf<RasterOp::SrcCopy>(dest, source, count);
    case RasterOp::SrcAnd:
        return runOf<RasterOp::SrcAnd>(dest, source, count);
    case RasterOp::SrcPaint:
        return runOf<RasterOp::SrcPaint>(dest, source, count);
    case RasterOp::MergePaint:
        return runOf<RasterOp::MergePaint>(dest, source, count);
    case RasterOp::DstInvert:
        return runOf<RasterOp::DstInvert>(dest, source, count);
    }
}

void spriteRun(std::uint32_t* dest, const SpriteRun& sprite, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t upper = sprite.upper[i];
        const std::uint32_t colors =
            (sprite.lowerPixel & ~sprite.lower[i] & upper) | (sprite.upperPixel & ~upper);
        dest[i] = (dest[i] & sprite.mask[i]) | colors | kOpaque;
    }
}

} // namespace zeltrona::render
