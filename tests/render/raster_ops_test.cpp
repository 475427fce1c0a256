#include "render/raster_ops.h"

#include <array>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace zeltrona::render {
namespace {

struct OpRow {
    RasterOp op;
    std::uint32_t number;
    std::array<bool, 4> results; ///< for (D, S) = (0, 0), (0, 1), (1, 0), (1, 1)
};

const std::array<OpRow, 5> kOps{{{RasterOp::SrcCopy, 0xCC0020, {false, true, false, true}},
                                 {RasterOp::SrcAnd, 0x8800C6, {false, false, false, true}},
                                 {RasterOp::SrcPaint, 0xEE0086, {false, true, true, true}},
                                 {RasterOp::MergePaint, 0xBB0226, {true, false, true, true}},
                                 {RasterOp::DstInvert, 0x550009, {true, true, false, false}}}};

bool expected(const OpRow& row, bool d, bool s) {
    return row.results[(d ? 2U : 0U) + (s ? 1U : 0U)];
}

TEST(RasterOps, CarryTheirNumbers) {
    for (const OpRow& row : kOps) {
        EXPECT_EQ(static_cast<std::uint32_t>(row.op), row.number);
    }
}

TEST(RasterOps, ActOnEachBitPairAtEachOfTheColourBits) {
    for (const OpRow& row : kOps) {
        for (unsigned bit = 0; bit < 24; ++bit) {
            for (const bool d : {false, true}) {
                for (const bool s : {false, true}) {
                    const std::uint32_t got = applyRasterOp(row.op, kOpaque | std::uint32_t{d} << bit,
                                                            kOpaque | std::uint32_t{s} << bit);
                    EXPECT_EQ((got >> bit & 1U) != 0, expected(row, d, s))
                        << std::hex << row.number << " bit " << bit;
                }
            }
        }
    }
}

TEST(RasterOps, ActOnEveryPairOfBytesBitByBit) {
    for (const OpRow& row : kOps) {
        for (std::uint32_t d = 0; d < 256; ++d) {
            for (std::uint32_t s = 0; s < 256; ++s) {
                std::uint32_t want = 0;
                for (unsigned bit = 0; bit < 8; ++bit) {
                    want |= std::uint32_t{expected(row, (d >> bit & 1U) != 0, (s >> bit & 1U) != 0)} << bit;
                }
                const std::uint32_t spread = 0x010101U;
                ASSERT_EQ(applyRasterOp(row.op, d * spread, s * spread), kOpaque | want * spread);
            }
        }
    }
}

TEST(RasterOps, KeepThePixelsOpaque) {
    for (const OpRow& row : kOps) {
        EXPECT_EQ(applyRasterOp(row.op, 0, 0) & kOpaque, kOpaque);
        EXPECT_EQ(applyRasterOp(row.op, 0xFFFFFFFFU, 0xFFFFFFFFU) & kOpaque, kOpaque);
    }
}

TEST(RasterOps, ARunEqualsItsPixelsAtEveryLengthAndTouchesNoOther) {
    for (const OpRow& row : kOps) {
        for (std::size_t count = 0; count < 40; ++count) {
            std::vector<std::uint32_t> dest(count + 2, 0xFF123456U);
            std::vector<std::uint32_t> source(count + 2);
            for (std::size_t i = 0; i < source.size(); ++i) {
                source[i] = 0xFF000000U | static_cast<std::uint32_t>(i * 0x2F3D1BU & 0xFFFFFFU);
            }
            rasterRun(row.op, dest.data() + 1, source.data() + 1, count);
            EXPECT_EQ(dest.front(), 0xFF123456U);
            EXPECT_EQ(dest.back(), 0xFF123456U);
            for (std::size_t i = 1; i <= count; ++i) {
                EXPECT_EQ(dest[i], applyRasterOp(row.op, 0xFF123456U, source[i]));
            }
        }
    }
}

/// A body as it is put together step by step, one raster operation after the other.
std::uint32_t stepByStep(std::uint32_t dest, std::uint32_t lower, std::uint32_t upper, std::uint32_t mask,
                         const SpriteRun& colors) {
    std::uint32_t sprite = kOpaque;
    for (const auto& [shape, color] :
         {std::pair{lower, colors.lowerPixel}, std::pair{upper, colors.upperPixel}}) {
        const std::uint32_t inverted = applyRasterOp(RasterOp::DstInvert, shape, 0);
        const std::uint32_t cut = applyRasterOp(RasterOp::SrcAnd, color, inverted);
        sprite = applyRasterOp(RasterOp::SrcAnd, sprite, shape);
        sprite = applyRasterOp(RasterOp::SrcPaint, sprite, cut);
    }
    dest = applyRasterOp(RasterOp::SrcAnd, dest, mask);
    return applyRasterOp(RasterOp::SrcPaint, dest, sprite);
}

TEST(SpriteRun, LeavesTheBitsOfTheSingleSteps) {
    const std::array<std::uint32_t, 4> words{0xFF000000U, 0xFFFFFFFFU, 0xFF5A3CF0U, 0xFF0F00C3U};
    SpriteRun run{nullptr, nullptr, nullptr, 0xFF99CCFFU, 0xFF2040C0U};
    for (const std::uint32_t dest : words) {
        for (const std::uint32_t lower : words) {
            for (const std::uint32_t upper : words) {
                for (const std::uint32_t mask : words) {
                    std::uint32_t got = dest;
                    run.lower = &lower;
                    run.upper = &upper;
                    run.mask = &mask;
                    spriteRun(&got, run, 1);
                    EXPECT_EQ(got, stepByStep(dest, lower, upper, mask, run));
                }
            }
        }
    }
}

} // namespace
} // namespace zeltrona::render
