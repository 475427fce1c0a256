#include "render/bezier_path.h"

#include <array>
#include <cmath>

namespace zeltrona::render {

using document::PointF;

namespace {

constexpr double kPitchLength = 5;
constexpr double kTolerance = 0.2;
constexpr double kLastT = 1.2;
constexpr std::size_t kMaxUpperBound = 32000;
/// A finer step can't move t any more.
constexpr double kSmallestStep = 1e-16;

struct Point {
    double x = 0;
    double y = 0;
};
using Cubic = std::array<Point, 4>;

double distance(PointF a, PointF b) {
    const double dx = static_cast<double>(b.x) - a.x;
    const double dy = static_cast<double>(b.y) - a.y;
    return std::sqrt(dx * dx + dy * dy);
}

PointF single(PointI p) {
    return {static_cast<float>(p.x), static_cast<float>(p.y)};
}

/// Control point of the stretch of the cubic whose three parameters are given.
Point blossom(const Cubic& cubic, double a, double b, double c) {
    const auto mix = [](Point p, Point q, double t) {
        return Point{p.x + (q.x - p.x) * t, p.y + (q.y - p.y) * t};
    };
    const Point p01 = mix(cubic[0], cubic[1], a);
    const Point p12 = mix(cubic[1], cubic[2], a);
    const Point p23 = mix(cubic[2], cubic[3], a);
    return mix(mix(p01, p12, b), mix(p12, p23, b), c);
}

/// Whether anything of the cubic from t to 1.2, as far as samples can go, may lie in the box.
bool mayShow(std::span<const PointI> p, double t, const ClipBox& box) {
    Cubic cubic;
    for (std::size_t i = 0; i < cubic.size(); ++i) {
        cubic[i] = {static_cast<double>(p[i].x), static_cast<double>(p[i].y)};
    }
    Point low = blossom(cubic, t, t, t);
    Point high = low;
    for (const Point q : {blossom(cubic, t, t, kLastT), blossom(cubic, t, kLastT, kLastT),
                          blossom(cubic, kLastT, kLastT, kLastT)}) {
        low = {std::min(low.x, q.x), std::min(low.y, q.y)};
        high = {std::max(high.x, q.x), std::max(high.y, q.y)};
    }
    return high.x >= box.left && low.x <= box.right && high.y >= box.top && low.y <= box.bottom;
}

/// The end of the part of the array behind which nothing shows: a number of cubics.
std::size_t cubicsThatMayShow(std::span<const PointI> bezier, const ClipBox& box) {
    std::size_t count = bezier.empty() ? 0 : (bezier.size() - 1) / 3;
    while (count > 0 && !mayShow(bezier.subspan((count - 1) * 3, 4), 0, box)) {
        --count;
    }
    return count;
}

bool isBeyondReach(PointF start, const ClipBox& box) {
    const ClipBox reached = grown(box, (kMaxUpperBound + 2) * (kPitchLength + kTolerance));
    return !isInside(reached, start);
}

/// What the walk along one cubic ends with.
enum class CubicEnd { Reached, Full, Unseen };

/// The walk's step: t is t0 + j * h.
struct Step {
    double h = 0.1;
    double t0 = 0;
    int j = 1;
};

/// What the walk has to know of the board.
struct Sight {
    const ClipBox& box;
    LineEffort* effort;  ///< may be null
    bool isLast = false; ///< nothing shows behind this cubic
};

CubicEnd sampleCubic(std::span<const PointI> p, std::vector<PointF>& points, const Sight& sight) {
    const PointF end = single(p[3]);
    Step step;
    points.push_back(points.back());
    while (points.size() - 1 <= kMaxUpperBound) {
        const double t = step.j * step.h + step.t0;
        if (t >= kLastT) {
            return CubicEnd::Reached;
        }
        PointF& sample = points.back();
        bezierPoint(p[0], p[1], p[2], p[3], sample, t);
        const double moved = distance(points[points.size() - 2], sample);
        if (moved >= kPitchLength + kTolerance) {
            step = {step.h / 10, (step.j - 1) * step.h + step.t0, 1};
            if (step.h < kSmallestStep) {
                return CubicEnd::Reached;
            }
        } else if (moved >= kPitchLength - kTolerance) {
            const PointF kept = sample;
            if (!isInside(sight.box, kept)) {
                if (sight.isLast && !mayShow(p, t, sight.box)) {
                    return CubicEnd::Unseen;
                }
                if (sight.effort != nullptr && !sight.effort->take(kCostOfUnseenSample)) {
                    return CubicEnd::Full;
                }
            }
            const bool isNearEnd = distance(kept, end) < kPitchLength + kTolerance;
            points.push_back(isNearEnd ? end : kept);
            if (isNearEnd) {
                return CubicEnd::Reached;
            }
            step = {0.1, t, 1};
        } else {
            ++step.j;
        }
    }
    return CubicEnd::Full;
}

} // namespace

void bezierPoint(PointI p0, PointI p1, PointI p2, PointI p3, PointF& point, double t) {
    const double rest = 1 - t;
    const double b0 = rest * rest * rest;
    const double b1 = 3 * t * rest * rest;
    const double b2 = 3 * t * t * rest;
    const double b3 = t * t * t;
    point.x = static_cast<float>(b0 * p0.x + b1 * p1.x + b2 * p2.x + b3 * p3.x);
    point.y = static_cast<float>(b0 * p0.y + b1 * p1.y + b2 * p2.y + b3 * p3.y);
}

void flattenBezierPath(std::span<const PointI> bezier, std::vector<PointF>& points, const ClipBox& box,
                       LineEffort* effort) {
    points.clear();
    if (bezier.empty()) {
        return;
    }
    points.push_back(single(bezier[0]));
    const std::size_t count = isBeyondReach(points[0], box) ? 0 : cubicsThatMayShow(bezier, box);
    for (std::size_t k = 0; k < count; ++k) {
        const Sight sight{box, effort, k + 1 == count};
        if (sampleCubic(bezier.subspan(k * 3, 4), points, sight) == CubicEnd::Full) {
            return;
        }
    }
}

} // namespace zeltrona::render
