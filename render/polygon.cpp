#include "render/polygon.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace zeltrona::render {

namespace {

/// Where the edges cross the row, in order from the left.
void findCrossings(std::span<const PointI> points, std::int64_t y, std::vector<double>& crossings) {
    crossings.clear();
    for (std::size_t i = 0; i < points.size(); ++i) {
        const PointI a = points[i];
        const PointI b = points[(i + 1) % points.size()];
        if ((a.y <= y) == (b.y <= y)) {
            continue; // the lower end of an edge does not count, so that a corner counts once
        }
        const double part = static_cast<double>(y - a.y) / (static_cast<double>(b.y) - a.y);
        crossings.push_back(a.x + part * (static_cast<double>(b.x) - a.x));
    }
    std::sort(crossings.begin(), crossings.end());
}

void fillInside(const PixelView& view, std::span<const PointI> points, std::uint32_t pixel) {
    const auto byY = [](PointI a, PointI b) { return a.y < b.y; };
    const auto [high, low] = std::minmax_element(points.begin(), points.end(), byY);
    const std::int64_t last = std::min<std::int64_t>(low->y, view.height - 1);
    std::vector<double> crossings;
    for (std::int64_t y = std::max<std::int64_t>(high->y, 0); y <= last; ++y) {
        findCrossings(points, y, crossings);
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
            fillSpan(view, y, static_cast<std::int64_t>(std::ceil(crossings[i])),
                     static_cast<std::int64_t>(std::floor(crossings[i + 1])), pixel);
        }
    }
}

} // namespace

void drawPolygon(const PixelView& view, std::span<const PointI> points, Pen outline,
                 std::optional<std::uint32_t> inside) {
    if (points.size() < 2) {
        return;
    }
    if (inside) {
        fillInside(view, points, *inside);
    }
    for (std::size_t i = 0; i < points.size(); ++i) {
        strokeSegment(view, points[i], points[(i + 1) % points.size()], outline);
    }
}

} // namespace zeltrona::render
