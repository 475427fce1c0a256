#include "render/arc.h"

#include "render/whole_rows.h"

#include <algorithm>
#include <array>
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
    return place > middle ? ceilOf(place - 0.5) : floorOf(place + 0.5);
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

    void draw() const {
        eachIn(m_arc.middle.x, m_view.width, [&](double x) {
            const double height = bow(x - m_arc.middle.x);
            plotIfHeld({x, m_arc.middle.y - height});
            plotIfHeld({x, m_arc.middle.y + height});
        });
        eachIn(m_arc.middle.y, m_view.height, [&](double y) {
            const double width = bow(y - m_arc.middle.y);
            plotIfHeld({m_arc.middle.x - width, y});
            plotIfHeld({m_arc.middle.x + width, y});
        });
        closeOctants();
        plot(placeOf(m_arc, m_sweep.start));
        plot(placeOf(m_arc, m_sweep.end));
    }

private:
    /// Calls for every whole number within the flat part around `middle` that the view shows.
    template<class Visit> void eachIn(double middle, int size, Visit visit) const {
        const double first = std::max(std::ceil(middle - m_flat), 0.0);
        const double last = std::min(std::floor(middle + m_flat), size - 1.0);
        visitWholes(first, last, visit);
    }
    double bow(double offset) const {
        return std::sqrt(std::max(m_arc.radius * m_arc.radius - offset * offset, 0.0));
    }

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
    void closeOctants() const {
        const std::array columns{std::ceil(m_arc.middle.x - m_flat), std::floor(m_arc.middle.x + m_flat)};
        const std::array rows{std::ceil(m_arc.middle.y - m_flat), std::floor(m_arc.middle.y + m_flat)};
        const std::array heights{bow(columns[0] - m_arc.middle.x), bow(columns[1] - m_arc.middle.x)};
        const std::array widths{bow(rows[0] - m_arc.middle.y), bow(rows[1] - m_arc.middle.y)};
        for (const std::size_t i : {0U, 1U}) {
            for (const std::size_t j : {0U, 1U}) {
                const double sx = i == 0 ? -1 : 1;
                const double sy = j == 0 ? -1 : 1;
                const Pixel flat = snapped({columns[i], m_arc.middle.y + sy * heights[i]});
                const Pixel steep = snapped({m_arc.middle.x + sx * widths[j], rows[j]});
                if (std::max(std::abs(flat.x - steep.x), std::abs(flat.y - steep.y)) > 1) {
                    plotIfHeld({m_arc.middle.x + sx * m_flat, m_arc.middle.y + sy * m_flat});
                }
            }
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
        : m_view(view), m_arc(arc), m_sweep(sweepOf(arc)), m_outer(arc.radius + pen.width / 2.0), m_pen(pen) {
        const double lean = pen.width % 2 == 0 ? -0.5 : 0.0;
        const double inner = std::max(arc.radius - pen.width / 2.0, 0.0);
        m_arc.middle = {arc.middle.x + lean, arc.middle.y + lean};
        m_nearest = inner * inner - kSlack;
        m_furthest = m_outer * m_outer - kSlack;
    }

    void draw() const {
        const double top = std::max(std::ceil(m_arc.middle.y - m_outer), 0.0);
        const double bottom = std::min(std::floor(m_arc.middle.y + m_outer), m_view.height - 1.0);
        visitWholes(top, bottom, [this](double y) { drawRow(y); });
        for (const PointD end : {m_sweep.start, m_sweep.end}) {
            const PointD at = placeOf(m_arc, end);
            const double back = m_pen.width % 2 == 0 ? 0.5 : 0.0;
            strokeDisc(m_view, {at.x + back, at.y + back}, m_pen);
        }
    }

private:
    void drawRow(double y) const {
        const double up = m_arc.middle.y - y;
        const double reach = std::sqrt(std::max(m_outer * m_outer - up * up, 0.0));
        const std::int64_t left = ceilOf(std::clamp(m_arc.middle.x - reach, 0.0, double(m_view.width)));
        const std::int64_t right = floorOf(std::clamp(m_arc.middle.x + reach, -1.0, m_view.width - 1.0));
        std::uint32_t* const row = m_view.row(static_cast<std::int64_t>(y));
        for (std::int64_t x = left; x <= right; ++x) {
            const PointD direction{static_cast<double>(x) - m_arc.middle.x, up};
            if (inBand(direction) && m_sweep.holds(direction)) {
                row[x] = m_pen.pixel;
            }
        }
    }
    /// The outer rim stays outside: a pixel that only touches it would stand out as a lone tip.
    bool inBand(PointD direction) const {
        const double distance = direction.x * direction.x + direction.y * direction.y;
        return distance >= m_nearest && distance < m_furthest;
    }

    static constexpr double kSlack = 1e-9;
    const PixelView& m_view;
    ArcShape m_arc;
    Sweep m_sweep;
    double m_outer;
    double m_nearest = 0.0; ///< squared distances of the band's edges
    double m_furthest = 0.0;
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
