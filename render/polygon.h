#pragma once

#include "render/pen.h"

#include <cstdint>
#include <optional>
#include <span>

namespace zeltrona::render {

/// A closed shape: its inside where a ray crosses the edges an odd number of times, then every edge with the
/// pen. Fewer than two points draw nothing.
void drawPolygon(const PixelView& view, std::span<const PointI> points, Pen outline,
                 std::optional<std::uint32_t> inside);

} // namespace zeltrona::render
