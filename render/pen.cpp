#include "render/pen.h"

#include "render/whole_rows.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace zeltrona::render {

namespace {

// Products of two 33-bit distances do not fit 64 bits.
__extension__ using Wide = __int128;

/// A hair line seen along its longer axis, from the end where that axis is smaller.
struct HairLine {
    std::int64_t major = 0;
    std::int64_t minor = 0;
    std::int64_t length = 0; ///< steps along the longer axis
    std::int64_t rise = 0;   ///< distance along the shorter axis, not negative
    int direction = 1;       ///< of the shorter axis
    bool steep = false;      ///< the longer axis is y
};

HairLine hairLineOf(PointI from, PointI to) {
    const bool steep = std::abs(std::int64_t{to.y} - from.y) > std::abs(std::int64_t{to.x} - from.x);
    if (steep) {
        std::swap(from.x, from.y);
        std::swap(to.x, to.y);
    }
    if (from.x > to.x) {
        std::swap(from, to);
    }
    const std::int64_t rise = std::int64_t{to.y} - from.y;
    return {from.x, from.y, std::int64_t{to.x} - from.x, std::abs(rise), rise < 0 ? -1 : 1, steep};
}

template<class Int> std::int64_t roundedRise(const HairLine& line, std::int64_t step) {
    const Int doubled = 2 * Int{line.rise} * step + line.length;
    const Int whole = doubled / (2 * Int{line.length});
    const bool half = doubled == whole * 2 * Int{line.length};
    return static_cast<std::int64_t>(half && 2 * step <= line.length ? whole - 1 : whole);
}

/// Shorter-axis distance after `step` steps: the nearest whole number; of two as near, the one that is nearer
/// to the end that the step is nearer to.
std::int64_t riseAt(const HairLine& line, std::int64_t step) {
    constexpr std::int64_t kShort = 1 << 30;
    if (line.length == 0) {
        return 0;
    }
    return line.length < kShort ? roundedRise<std::int64_t>(line, step) : roundedRise<Wide>(line, step);
}

void strokeHair(const PixelView& view, PointI from, PointI to, std::uint32_t pixel) {
    const HairLine line = hairLineOf(from, to);
    const int extent = line.steep ? view.height : view.width;
    const std::int64_t first = std::max<std::int64_t>(0, -line.major);
    const std::int64_t last = std::min(line.length, extent - 1 - line.major);
    for (std::int64_t step = first; step <= last; ++step) {
        const std::int64_t along = line.major + step;
        const std::int64_t across = line.minor + line.direction * riseAt(line, step);
        if (line.steep) {
            setPixel(view, across, along, pixel);
        } else {
            setPixel(view, along, across, pixel);
        }
    }
}

/// Part of a row; empty when right < left.
struct Reach {
    double left = HUGE_VAL;
    double right = -HUGE_VAL;

    void add(double from, double to) {
        left = std::min(left, from);
        right = std::max(right, to);
    }
};

/// The pen's round end at `middle`.
void addDisc(Reach& reach, PointD middle, double radius, double y) {
    const double rest = radius * radius - (y - middle.y) * (y - middle.y);
    if (rest >= 0.0) {
        const double half = std::sqrt(rest);
        reach.add(middle.x - half, middle.x + half);
    }
}

/// The x where low <= slope * x + offset <= high; `inverse` is 1 / slope.
struct Slope {
    double slope = 0.0;
    double inverse = 0.0;

    explicit Slope(double of) : slope(of), inverse(of == 0.0 ? 0.0 : 1.0 / of) {}

    void keep(Reach& reach, double offset, double low, double high) const {
        if (slope == 0.0) {
            if (offset < low || offset > high) {
                reach = {};
            }
            return;
        }
        const double one = (low - offset) * inverse;
        const double other = (high - offset) * inverse;
        reach.left = std::max(reach.left, std::min(one, other));
        reach.right = std::min(reach.right, std::max(one, other));
    }
};

/// The straight part between the ends.
class Bar {
public:
    Bar(PointD from, PointD to, double radius)
        : m_from(from),
          m_length(std::hypot(to.x - from.x, to.y - from.y)),
          m_along(m_length == 0.0 ? 0.0 : (to.x - from.x) / m_length),
          m_across(m_length == 0.0 ? 0.0 : (from.y - to.y) / m_length),
          m_radius(radius) {}

    void addTo(Reach& reach, double y) const {
        if (m_length == 0.0) {
            return;
        }
        const double ux = m_along.slope;
        const double uy = -m_across.slope;
        Reach row{-HUGE_VAL, HUGE_VAL};
        m_along.keep(row, (y - m_from.y) * uy - m_from.x * ux, 0.0, m_length);
        m_across.keep(row, (y - m_from.y) * ux + m_from.x * uy, -m_radius, m_radius);
        if (row.left <= row.right) {
            reach.add(row.left, row.right);
        }
    }

private:
    PointD m_from;
    double m_length;
    Slope m_along;
    Slope m_across;
    double m_radius;
};

void fillReach(const PixelView& view, int y, const Reach& reach, std::uint32_t pixel) {
    // A place that should lie exactly on the edge counts as inside, whichever side its last bit fell on.
    constexpr double kSlack = 1e-6;
    if (reach.left > reach.right || reach.right < -1.0 || reach.left > view.width) {
        return;
    }
    const std::int64_t left = ceilOf(std::max(reach.left, 0.0) - kSlack);
    const std::int64_t right = floorOf(std::min<double>(reach.right, view.width) + kSlack);
    fillSpan(view, y, left, right, pixel);
}

/// How far a place is from the stretch between two others, squared.
double squaredDistance(PointD place, PointD from, PointD to) {
    const PointD along{to.x - from.x, to.y - from.y};
    const PointD way{place.x - from.x, place.y - from.y};
    const double squared = along.x * along.x + along.y * along.y;
    const double part = squared == 0.0 ? 0.0 : (way.x * along.x + way.y * along.y) / squared;
    const double foot = std::clamp(part, 0.0, 1.0);
    const double x = way.x - foot * along.x;
    const double y = way.y - foot * along.y;
    return x * x + y * y;
}

/// Whether the stroke holds all of the view: it has no dents, so that its four corners tell.
bool coversAll(const PixelView& view, PointD from, PointD to, double radius) {
    const double right = view.width - 1.0;
    const double bottom = view.height - 1.0;
    if (radius < std::min(right, bottom) / 2.0) {
        return false;
    }
    const std::array corners{PointD{0.0, 0.0}, PointD{right, 0.0}, PointD{0.0, bottom},
                             PointD{right, bottom}};
    return std::all_of(corners.begin(), corners.end(),
                       [&](PointD corner) { return squaredDistance(corner, from, to) < radius * radius; });
}

} // namespace

Stroke strokeWide(const PixelView& view, PointD from, PointD to, Pen pen) {
    const double lean = pen.width % 2 == 0 ? -0.5 : 0.0;
    const double radius = std::max(pen.width, 1) / 2.0;
    from = {from.x + lean, from.y + lean};
    to = {to.x + lean, to.y + lean};
    if (coversAll(view, from, to, radius)) {
        fillAll(view, pen.pixel);
        return Stroke::Whole;
    }
    const double top = std::max(std::ceil(std::min(from.y, to.y) - radius), 0.0);
    const double bottom = std::min(std::floor(std::max(from.y, to.y) + radius), view.height - 1.0);
    const Bar bar(from, to, radius);
    visitWholes(top, bottom, [&](int y) {
        Reach reach;
        addDisc(reach, from, radius, y);
        addDisc(reach, to, radius, y);
        bar.addTo(reach, y);
        fillReach(view, y, reach, pen.pixel);
    });
    return Stroke::Part;
}

void strokeDisc(const PixelView& view, PointD at, Pen pen) {
    const double lean = pen.width % 2 == 0 ? -0.5 : 0.0;
    const double radius = std::max(pen.width, 1) / 2.0;
    at = {at.x + lean, at.y + lean};
    const double top = std::max(std::ceil(at.y - radius), 0.0);
    const double bottom = std::min(std::floor(at.y + radius), view.height - 1.0);
    visitWholes(top, bottom, [&](int y) {
        Reach reach;
        addDisc(reach, at, radius, y);
        fillReach(view, y, reach, pen.pixel);
    });
}

void strokeSegment(const PixelView& view, PointI from, PointI to, Pen pen) {
    if (pen.width <= 1) {
        strokeHair(view, from, to, pen.pixel);
        return;
    }
    strokeWide(view, {double(from.x), double(from.y)}, {double(to.x), double(to.y)}, pen);
}

void strokeDot(const PixelView& view, PointI at, Pen pen) {
    if (pen.width <= 1) {
        setPixel(view, at.x, at.y, pen.pixel);
        return;
    }
    strokeDisc(view, {double(at.x), double(at.y)}, pen);
}

} // namespace zeltrona::render
