#pragma once

#include <cstdint>

namespace zeltrona::render {

/// A pixel of whole coordinates.
struct PointI {
    std::int32_t x = 0;
    std::int32_t y = 0;
    friend bool operator==(const PointI&, const PointI&) = default;
};

enum class FillStyle { Solid = 0, Transparent = 1 };
enum class DrawStyle { Solid = 0 };

} // namespace zeltrona::render
