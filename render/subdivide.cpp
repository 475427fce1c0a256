#include "render/subdivide.h"

#include <cmath>

namespace zeltrona::render {

using document::PointF;

namespace {

/// Past this count neighbouring points can't be told apart by their index.
constexpr double kMaxCount = 9007199254740992.0;

/// `count` whole pitches, then a rest up to the end point or none.
struct Division {
    std::int64_t count = 0;
    bool hasRest = false;
};

bool isFinite(float x1, float y1, float x2, float y2) {
    return std::isfinite(x1) && std::isfinite(y1) && std::isfinite(x2) && std::isfinite(y2);
}

/// Along an axis the rounded length, else a single, both held in a double.
double pitchLength(float x1, float y1, float x2, float y2) {
    const double dx = std::abs(static_cast<double>(x2) - x1);
    const double dy = std::abs(static_cast<double>(y2) - y1);
    if (y1 == y2) {
        return std::nearbyint(dx);
    }
    if (x1 == x2) {
        return std::nearbyint(dy);
    }
    const double exact = std::sqrt(dx * dx + dy * dy);
    return static_cast<float>(std::min(exact, static_cast<double>(std::numeric_limits<float>::max())));
}

Division divide(float x1, float y1, float x2, float y2) {
    const double length = pitchLength(x1, y1, x2, y2);
    const double count = std::min(std::floor(length / kPitch), kMaxCount);
    return {static_cast<std::int64_t>(count), std::fmod(std::nearbyint(length), kPitch) != 0};
}

/// Steps along a segment; `cosine` and `tangent` of its slope against the x axis.
struct Walk {
    PointF from;
    PointF to;
    double cosine = 0;
    double tangent = 0;
};

Walk walkAlong(float x1, float y1, float x2, float y2) {
    Walk walk{{x1, y1}, {x2, y2}};
    if (x1 != x2 && y1 != y2) {
        const double slope =
            std::atan(std::abs(static_cast<double>(y2) - y1) / std::abs(static_cast<double>(x2) - x1));
        walk.cosine = std::cos(slope);
        walk.tangent = std::tan(slope);
    }
    return walk;
}

float moved(float from, float to, double by) {
    return static_cast<float>(from >= to ? from - by : from + by);
}

PointF pointAt(const Walk& walk, std::int64_t i) {
    const double along = static_cast<double>(kPitch) * static_cast<double>(i);
    if (walk.from.y == walk.to.y) {
        return {moved(walk.from.x, walk.to.x, along), walk.from.y};
    }
    if (walk.from.x == walk.to.x) {
        return {walk.from.x, moved(walk.from.y, walk.to.y, along)};
    }
    const double s = along * walk.cosine;
    return {moved(walk.from.x, walk.to.x, s), moved(walk.from.y, walk.to.y, s * walk.tangent)};
}

/// Narrows [low, high], distances along a line, to where start + along * direction lies between the edges.
void narrow(double start, double direction, double edge1, double edge2, double& low, double& high) {
    if (direction == 0) {
        if (start < edge1 || start > edge2) {
            high = -std::numeric_limits<double>::infinity();
        }
        return;
    }
    const double a = (edge1 - start) / direction;
    const double b = (edge2 - start) / direction;
    low = std::max(low, std::min(a, b));
    high = std::min(high, std::max(a, b));
}

} // namespace

std::int64_t pitchUpperBound(float x1, float y1, float x2, float y2) {
    if (!isFinite(x1, y1, x2, y2)) {
        return 0;
    }
    const Division division = divide(x1, y1, x2, y2);
    return division.count + (division.hasRest ? 1 : 0);
}

PitchWindow visiblePitches(float x1, float y1, float x2, float y2, const ClipBox& box) {
    const std::int64_t bound = pitchUpperBound(x1, y1, x2, y2);
    const double dx = static_cast<double>(x2) - x1;
    const double dy = static_cast<double>(y2) - y1;
    const double length = std::hypot(dx, dy);
    if (bound == 0 || length == 0) {
        return {0, bound};
    }
    double low = -2.0 * kPitch;
    double high = length + 2.0 * kPitch;
    narrow(x1, dx / length, box.left, box.right, low, high);
    narrow(y1, dy / length, box.top, box.bottom, low, high);
    if (low > high) {
        return {0, -1};
    }
    const double first = std::max(0.0, std::floor(low / kPitch) - 1);
    const double last = std::min(static_cast<double>(bound), std::ceil(high / kPitch) + 1);
    if (first > last) {
        return {0, -1};
    }
    return {static_cast<std::int64_t>(first), static_cast<std::int64_t>(last)};
}

void subdivideSegment(std::vector<PointF>& points, float x1, float y1, float x2, float y2, int unit,
                      PitchWindow window) {
    if (unit != 1) {
        return;
    }
    points.clear();
    const std::int64_t bound = pitchUpperBound(x1, y1, x2, y2);
    const bool hasRest = bound > 0 && divide(x1, y1, x2, y2).hasRest;
    const Walk walk = walkAlong(x1, y1, x2, y2);
    const std::int64_t last = std::min(bound, window.last);
    for (std::int64_t i = std::max<std::int64_t>(0, window.first); i <= last; ++i) {
        points.push_back(hasRest && i == bound ? walk.to : i == 0 ? walk.from : pointAt(walk, i));
    }
}

} // namespace zeltrona::render
