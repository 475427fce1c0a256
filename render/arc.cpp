#include "render/arc.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>

namespace zeltrona::render {

namespace {

double cross(PointD a, PointD b) {
    return a.x * b.y - a.y * b.x;
}

/// Tells which directions from the middle belong to the arc. Directions have y upwards, as angles are
/// counted.
struct Sweep {
    PointD start;
    PointD end;
    bool wide = false; ///< more than half a turn

    bool holds(PointD direction) const {
        constexpr double kSlack = 1e-6;
        const bool pastStart = cross(start, direction) >= -kSlack;
        const bool beforeEnd = cross(direction, end) >= -kSlack;
        return wide ? pastStart || beforeEnd : pastStart && beforeEnd;
    }
};

Sweep sweepOf(const ArcShape& arc) {
    constexpr double kTurn = 2.0 * std::numbers::pi;
    double angle = std::fmod(arc.end - arc.start, kTurn);
    if (angle < 0.0) {
        angle += kTurn;
    }
    return {{std::cos(arc.start), std::sin(arc.start)},
            {std::cos(arc.end), std::sin(arc.end)},
            angle > std::numbers::pi};
}

PointD placeOf(const ArcShape& arc, PointD direction) {
    return {arc.middle.x + arc.radius * direction.x, arc.middle.y - arc.radius * direction.y};
}

/// The nearest pixel row or column; of two as near, the one towards the middle, so that both sides are alike.
std::int64_t snap(double place, double middle) {
    return static_cast<std::int64_t>(place > middle ? std::ceil(place - 0.5) : std::floor(place + 0.5));
}

struct Pixel {
    std::int64_t x = 0;
    std::int64_t y = 0;
};

/// Draws the thin arc: where the circle is flat one pixel to a column, where it is steep one to a row.
class ThinArc {
public:
    ThinArc(const PixelView& view, const ArcShape& arc, std::uint32_t pixel)
        : m_view(view),
          m_arc(arc),
          m_sweep(sweepOf(arc)),
          m_flat(arc.radius * std::numbers::sqrt2 / 2.0),
          m_pixel(pixel) {}

    void draw() {
        for (const int side : {-1, 1}) {
            eachIn(m_arc.middle.x, m_view.width, [&](double x) { plotIfHeld(onColumn(x, side)); });
            eachIn(m_arc.middle.y, m_view.height, [&](double y) { plotIfHeld(onRow(y, side)); });
        }
        for (const int sx : {-1, 1}) {
            for (const int sy : {-1, 1}) {
                closeOctants(sx, sy);
            }
        }
        plot(placeOf(m_arc, m_sweep.start));
        plot(placeOf(m_arc, m_sweep.end));
    }

private:
    /// Calls for every whole number within the flat part around `middle` that the view shows.
    template<class Visit> void eachIn(double middle, int size, Visit visit) const {
        const double first = std::max(std::ceil(middle - m_flat), 0.0);
        const double last = std::min(std::floor(middle + m_flat), size - 1.0);
        for (double at = first; at <= last; at += 1.0) {
            visit(at);
        }
    }
    double bow(double offset) const {
        return std::sqrt(std::max(m_arc.radius * m_arc.radius - offset * offset, 0.0));
    }
    PointD onColumn(double x, int side) const { return {x, m_arc.middle.y + side * bow(x - m_arc.middle.x)}; }
    PointD onRow(double y, int side) const { return {m_arc.middle.x + side * bow(y - m_arc.middle.y), y}; }

    bool holds(PointD place) const {
        return m_sweep.holds({place.x - m_arc.middle.x, m_arc.middle.y - place.y});
    }
    Pixel snapped(PointD place) const {
        return {snap(place.x, m_arc.middle.x), snap(place.y, m_arc.middle.y)};
    }
    void plot(PointD place) const {
        const Pixel at = snapped(place);
        setPixel(m_view, at.x, at.y, m_pixel);
    }
    void plotIfHeld(PointD place) const {
        if (holds(place)) {
            plot(place);
        }
    }
    /// Where flat turns into steep the last column and the first row may lie a pixel apart.
    void closeOctants(int sx, int sy) const {
        const PointD diagonal{m_arc.middle.x + sx * m_flat, m_arc.middle.y + sy * m_flat};
        const double column = sx > 0 ? std::floor(diagonal.x) : std::ceil(diagonal.x);
        const double row = sy > 0 ? std::floor(diagonal.y) : std::ceil(diagonal.y);
        const Pixel flat = snapped(onColumn(column, sy));
        const Pixel steep = snapped(onRow(row, sx));
        if (std::max(std::abs(flat.x - steep.x), std::abs(flat.y - steep.y)) > 1) {
            plotIfHeld(diagonal);
        }
    }

    const PixelView& m_view;
    ArcShape m_arc;
    Sweep m_sweep;
    double m_flat; ///< half the side of the square within the circle
    std::uint32_t m_pixel;
};

/// Draws the arc as a band of the pen's width with round ends.
class WideArc {
public:
    WideArc(const PixelView& view, const ArcShape& arc, Pen pen)
        : m_view(view), m_arc(arc), m_sweep(sweepOf(arc)), m_half(pen.width / 2.0), m_pen(pen) {
        const double lean = pen.width % 2 == 0 ? -0.5 : 0.0;
        m_arc.middle = {arc.middle.x + lean, arc.middle.y + lean};
    }

    void draw() {
        const double outer = m_arc.radius + m_half;
        const double top = std::max(std::ceil(m_arc.middle.y - outer), 0.0);
        const double bottom = std::min(std::floor(m_arc.middle.y + outer), m_view.height - 1.0);
        for (double y = top; y <= bottom; y += 1.0) {
            drawRow(y, outer);
        }
        for (const PointD end : {m_sweep.start, m_sweep.end}) {
            const PointD at = placeOf(m_arc, end);
            const double back = m_pen.width % 2 == 0 ? 0.5 : 0.0;
            strokeWide(m_view, {at.x + back, at.y + back}, {at.x + back, at.y + back}, m_pen);
        }
    }

private:
    void drawRow(double y, double outer) const {
        const double reach = std::sqrt(std::max(outer * outer - squared(y - m_arc.middle.y), 0.0));
        const double left = std::max(std::ceil(m_arc.middle.x - reach), 0.0);
        const double right = std::min(std::floor(m_arc.middle.x + reach), m_view.width - 1.0);
        for (double x = left; x <= right; x += 1.0) {
            const PointD direction{x - m_arc.middle.x, m_arc.middle.y - y};
            if (inBand(direction) && m_sweep.holds(direction)) {
                m_view.row(static_cast<std::int64_t>(y))[static_cast<std::int64_t>(x)] = m_pen.pixel;
            }
        }
    }
    /// The outer rim stays outside: a pixel that only touches it would stand out as a lone tip.
    bool inBand(PointD direction) const {
        constexpr double kSlack = 1e-9;
        const double inner = std::max(m_arc.radius - m_half, 0.0);
        const double outer = m_arc.radius + m_half;
        const double distance = squared(direction.x) + squared(direction.y);
        return distance >= squared(inner) - kSlack && distance < squared(outer) - kSlack;
    }
    static double squared(double value) { return value * value; }

    const PixelView& m_view;
    ArcShape m_arc;
    Sweep m_sweep;
    double m_half;
    Pen m_pen;
};

} // namespace

void strokeArc(const PixelView& view, const ArcShape& arc, Pen pen) {
    if (!(arc.radius > 0.0)) {
        return;
    }
    if (pen.width <= 1) {
        ThinArc(view, arc, pen.pixel).draw();
    } else {
        WideArc(view, arc, pen).draw();
    }
}

} // namespace zeltrona::render
