#include "render/bezier_stroke.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace zeltrona::render {

namespace {

using Cubic = std::array<PointD, 4>;

struct Bounds {
    double left, top, right, bottom;
    double longest() const { return std::max(right - left, bottom - top); }
};

Bounds boundsOf(const Cubic& c) {
    const auto [left, right] = std::minmax({c[0].x, c[1].x, c[2].x, c[3].x});
    const auto [top, bottom] = std::minmax({c[0].y, c[1].y, c[2].y, c[3].y});
    return {left, top, right, bottom};
}

bool canShow(const PixelView& view, const Bounds& bounds, double margin) {
    return bounds.right >= -margin && bounds.left <= view.width + margin && bounds.bottom >= -margin
           && bounds.top <= view.height + margin;
}

PointD between(PointD a, PointD b) {
    return {(a.x + b.x) / 2.0, (a.y + b.y) / 2.0};
}

void halve(const Cubic& c, Cubic& first, Cubic& second) {
    const PointD early = between(c[0], c[1]);
    const PointD top = between(c[1], c[2]);
    const PointD late = between(c[2], c[3]);
    const PointD left = between(early, top);
    const PointD right = between(top, late);
    const PointD middle = between(left, right);
    first = {c[0], early, left, middle};
    second = {middle, right, late, c[3]};
}

/// Halves the cubic until `isSmall` says so and hands each piece that the view can show to `draw`, in order.
/// A far control point costs only the halvings of the pieces that come near the view.
template<class IsSmall, class Draw>
void cut(const PixelView& view, const Cubic& cubic, double margin, int depth, IsSmall isSmall, Draw draw) {
    const Bounds bounds = boundsOf(cubic);
    if (!canShow(view, bounds, margin)) {
        return;
    }
    constexpr int kDeepest = 48; // halves the widest range of coordinates down to a fraction of a pixel
    if (depth >= kDeepest || isSmall(cubic, bounds)) {
        draw(cubic);
        return;
    }
    Cubic first;
    Cubic second;
    halve(cubic, first, second);
    cut(view, first, margin, depth + 1, isSmall, draw);
    cut(view, second, margin, depth + 1, isSmall, draw);
}

/// Draws a chain of pixels without corners: of three that make a right angle the middle one is left out.
class ThinChain {
public:
    ThinChain(const PixelView& view, std::uint32_t pixel) : m_view(view), m_pixel(pixel) {}

    void add(PointD place) {
        const std::int64_t x = std::llround(place.x);
        const std::int64_t y = std::llround(place.y);
        if (m_count > 0 && x == m_x[1] && y == m_y[1]) {
            return;
        }
        const bool corner = m_count > 1 && std::abs(x - m_x[0]) == 1 && std::abs(y - m_y[0]) == 1;
        if (!corner) {
            flush();
            m_x[0] = m_x[1];
            m_y[0] = m_y[1];
            ++m_count;
        }
        m_x[1] = x;
        m_y[1] = y;
    }
    /// Draws the pixel that was held back to see whether it is a corner.
    void flush() const {
        if (m_count > 0) {
            setPixel(m_view, m_x[1], m_y[1], m_pixel);
        }
    }

private:
    const PixelView& m_view;
    std::uint32_t m_pixel;
    std::array<std::int64_t, 2> m_x{};
    std::array<std::int64_t, 2> m_y{};
    int m_count = 0;
};

void strokeThin(const PixelView& view, const Cubic& cubic, ThinChain& chain) {
    const auto isSmall = [](const Cubic&, const Bounds& bounds) { return bounds.longest() <= 0.5; };
    chain.add(cubic[0]);
    cut(view, cubic, 2.0, 0, isSmall, [&](const Cubic& piece) { chain.add(piece[3]); });
}

/// How far a point stands off the straight stretch between the ends.
double bulge(const Cubic& c, PointD point) {
    const PointD chord{c[3].x - c[0].x, c[3].y - c[0].y};
    const PointD way{point.x - c[0].x, point.y - c[0].y};
    const double squared = chord.x * chord.x + chord.y * chord.y;
    const double part = squared == 0.0 ? 0.0 : (way.x * chord.x + way.y * chord.y) / squared;
    const double foot = std::clamp(part, 0.0, 1.0);
    const double x = way.x - foot * chord.x;
    const double y = way.y - foot * chord.y;
    return std::sqrt(x * x + y * y);
}

void strokeBand(const PixelView& view, const Cubic& cubic, Pen pen) {
    // Beside a pen as wide as the board a piece of 64 pixels is a dot.
    const double longest = std::max(64.0, 4.0 * pen.width);
    const auto isStraight = [longest](const Cubic& piece, const Bounds& bounds) {
        constexpr double kFlat = 0.1;
        return bounds.longest() <= 0.5
               || (bounds.longest() <= longest && bulge(piece, piece[1]) <= kFlat
                   && bulge(piece, piece[2]) <= kFlat);
    };
    bool whole = false;
    cut(view, cubic, pen.width + 1.0, 0, isStraight, [&](const Cubic& piece) {
        whole = whole || strokeWide(view, piece[0], piece[3], pen) == Stroke::Whole;
    });
}

PointD placeOf(PointI point) {
    return {static_cast<double>(point.x), static_cast<double>(point.y)};
}

} // namespace

void strokeBeziers(const PixelView& view, std::span<const PointI> points, Pen pen) {
    ThinChain chain(view, pen.pixel);
    for (std::size_t i = 0; i + 3 < points.size(); i += 3) {
        const Cubic cubic{placeOf(points[i]), placeOf(points[i + 1]), placeOf(points[i + 2]),
                          placeOf(points[i + 3])};
        if (pen.width <= 1) {
            strokeThin(view, cubic, chain);
        } else {
            strokeBand(view, cubic, pen);
        }
    }
    chain.flush();
}

} // namespace zeltrona::render
