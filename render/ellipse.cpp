#include "render/ellipse.h"

#include <algorithm>
#include <cmath>

namespace zeltrona::render {

namespace {

/// Half the width of a row, in half pixels, from middle to middle: the largest `reach` with
/// (reach / width)^2 + (dy / height)^2 <= 1 that has the parity of the columns' middles.
std::int64_t reachOf(std::int64_t width, std::int64_t height, std::int64_t dy) {
    const double part = static_cast<double>(dy) / static_cast<double>(height);
    auto reach = static_cast<std::int64_t>(static_cast<double>(width) * std::sqrt(1.0 - part * part));
    constexpr std::int64_t kExact = 20000; // squares of squares still fit 64 bits
    if (width <= kExact && height <= kExact) {
        const std::int64_t rest = width * width * (height * height - dy * dy);
        while ((reach + 1) * (reach + 1) * height * height <= rest) {
            ++reach;
        }
        while (reach > 0 && reach * reach * height * height > rest) {
            --reach;
        }
    }
    return (reach + width) % 2 == 0 ? reach - 1 : reach;
}

/// What of a row is no outline of width 1: every pixel of it has all four neighbours in the ellipse.
RowSpan innerRow(const RowSpan& above, const RowSpan& here, const RowSpan& below) {
    return {std::max({above.left, here.left + 1, below.left}),
            std::min({above.right, here.right - 1, below.right})};
}

void fillRow(const PixelView& view, std::int64_t y, const RowSpan& whole, const RowSpan& inside,
             const EllipseInk& ink) {
    if (inside.right < inside.left) {
        fillSpan(view, y, whole.left, whole.right, ink.outline);
        return;
    }
    fillSpan(view, y, whole.left, inside.left - 1, ink.outline);
    if (ink.inside) {
        fillSpan(view, y, inside.left, inside.right, *ink.inside);
    }
    fillSpan(view, y, inside.right + 1, whole.right, ink.outline);
}

} // namespace

EllipseBox ellipseBoxOf(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2) {
    return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)};
}

RowSpan ellipseRow(const EllipseBox& box, std::int64_t y) {
    const std::int64_t width = box.right - box.left;
    const std::int64_t height = box.bottom - box.top;
    if (width <= 0 || y < box.top || y >= box.bottom) {
        return {};
    }
    const std::int64_t dy = std::abs(2 * (y - box.top) + 1 - height);
    const std::int64_t narrowest = width % 2 == 0 ? 1 : 0;
    const bool widest = dy <= 1;
    const std::int64_t reach = widest ? width - 1 : std::max(reachOf(width, height, dy), narrowest);
    return {box.left + (width - 1 - reach) / 2, box.left + (width - 1 + reach) / 2};
}

void drawEllipse(const PixelView& view, const EllipseBox& box, const EllipseInk& ink) {
    if (box.right <= box.left || box.bottom <= box.top) {
        return;
    }
    const std::int64_t pen = std::max(ink.penWidth, 1);
    const EllipseBox outer{box.left - pen / 2, box.top - pen / 2, box.right + (pen - 1) / 2,
                           box.bottom + (pen - 1) / 2};
    const EllipseBox inner{outer.left + pen, outer.top + pen, outer.right - pen, outer.bottom - pen};
    const bool oneColour = ink.inside == ink.outline;
    const std::int64_t first = std::max<std::int64_t>(outer.top, 0);
    const std::int64_t last = std::min<std::int64_t>(outer.bottom, view.height) - 1;
    RowSpan above = ellipseRow(outer, first - 1);
    RowSpan here = ellipseRow(outer, first);
    for (std::int64_t y = first; y <= last; ++y) {
        const RowSpan below = ellipseRow(outer, y + 1);
        if (oneColour) {
            fillSpan(view, y, here.left, here.right, ink.outline);
        } else {
            fillRow(view, y, here, pen == 1 ? innerRow(above, here, below) : ellipseRow(inner, y), ink);
        }
        above = here;
        here = below;
    }
}

} // namespace zeltrona::render
