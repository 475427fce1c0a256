#pragma once

#include "render/pixel_view.h"

#include <cstdint>
#include <optional>

namespace zeltrona::render {

/// The rectangle that an ellipse fills: the right column and the bottom row are the first ones outside it.
struct EllipseBox {
    std::int64_t left = 0;
    std::int64_t top = 0;
    std::int64_t right = 0;
    std::int64_t bottom = 0;
    friend bool operator==(const EllipseBox&, const EllipseBox&) = default;
};

/// The box of two corners, whichever comes first.
EllipseBox ellipseBoxOf(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2);

struct RowSpan {
    std::int64_t left = 0;
    std::int64_t right = -1; ///< included; a span with right < left is empty
    friend bool operator==(const RowSpan&, const RowSpan&) = default;
};

/// The pixels of row `y` whose middle lies inside the ellipse or on it; the rim of a flat one still reaches
/// every side of its box. Symmetric left to right and top to bottom.
RowSpan ellipseRow(const EllipseBox& box, std::int64_t y);

struct EllipseInk {
    int penWidth = 1;
    std::uint32_t outline = kOpaque;
    std::optional<std::uint32_t> inside; ///< none leaves the inside as it is
};
/// A pen wider than 1 grows the ellipse: half of the outline lies outside the box.
void drawEllipse(const PixelView& view, const EllipseBox& box, const EllipseInk& ink);

} // namespace zeltrona::render
