#include "tools/plays/curve.h"

#include <algorithm>
#include <cmath>

namespace zeltrona::plays {

using document::PointF;

namespace {

constexpr int kPiecesPerCubic = 400;
constexpr double kFullSpeed = 3;
constexpr double kStartSpeed = 1;
constexpr double kSpeedUp = 0.2; ///< of each unit that lies behind or ahead

PointF between(PointF a, PointF b) {
    return {(a.x + b.x) / 2, (a.y + b.y) / 2};
}

/// The cubic from a to b whose two control points are both c.
PointF cubicAt(PointF a, PointF c, PointF b, double t) {
    const double rest = 1 - t;
    const double pull = 3 * t * rest * rest + 3 * t * t * rest;
    const auto mix = [&](float p, float q, float r) {
        return static_cast<float>(rest * rest * rest * p + pull * q + t * t * t * r);
    };
    return {mix(a.x, c.x, b.x), mix(a.y, c.y, b.y)};
}

std::vector<PointF> finePoints(const std::vector<PointF>& curve) {
    std::vector<PointF> fine{curve.front()};
    for (std::size_t i = 0; i + 2 < curve.size(); i += 2) {
        for (int k = 1; k <= kPiecesPerCubic; ++k) {
            fine.push_back(
                cubicAt(curve[i], curve[i + 1], curve[i + 2], static_cast<double>(k) / kPiecesPerCubic));
        }
    }
    return fine;
}

double gap(PointF a, PointF b) {
    return std::hypot(static_cast<double>(b.x) - a.x, static_cast<double>(b.y) - a.y);
}

double speedAt(double behind, double ahead) {
    return std::min({kFullSpeed, kStartSpeed + kSpeedUp * behind, kStartSpeed + kSpeedUp * ahead});
}

} // namespace

PointF quartered(PointF p) {
    return {std::nearbyint(p.x * 4) / 4, std::nearbyint(p.y * 4) / 4};
}

std::vector<PointF> curvePoints(PointF from, const std::vector<PointF>& via, PointF to) {
    std::vector<PointF> points{from};
    for (std::size_t i = 0; i < via.size(); ++i) {
        points.push_back(via[i]);
        points.push_back(i + 1 < via.size() ? between(via[i], via[i + 1]) : to);
    }
    return points;
}

std::vector<PointF> naturalRun(const std::vector<PointF>& curve) {
    const std::vector<PointF> fine = finePoints(curve);
    double total = 0;
    for (std::size_t i = 1; i < fine.size(); ++i) {
        total += gap(fine[i - 1], fine[i]);
    }
    std::vector<PointF> run{fine.front()};
    double walked = 0;
    double next = kStartSpeed;
    for (std::size_t i = 1; i < fine.size(); ++i) {
        walked += gap(fine[i - 1], fine[i]);
        if (walked >= next && total - walked >= kStartSpeed) {
            run.push_back(quartered(fine[i]));
            next = walked + speedAt(walked, total - walked);
        }
    }
    run.push_back(fine.back());
    return run;
}

} // namespace zeltrona::plays
