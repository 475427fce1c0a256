#include "render/wave.h"

#include <cmath>

namespace zeltrona::render {

using document::Color;
using document::PointF;

namespace {

struct Angles {
    double start = 0;
    double end = 0;
};

/// The angles with the flag off; with the flag on the two change places.
Angles anglesOver(PointF p, PointF q, double slope) {
    if (q.x == p.x) {
        return {9.423 / 2, 3.141 / 2};
    }
    if (q.y == p.y) {
        return {0, 3.141};
    }
    if ((p.x < q.x && p.y < q.y) || (p.x > q.x && p.y > q.y)) {
        return {6.282 - slope, 3.141 - slope};
    }
    return {slope + 3.141, slope};
}

float middle(float from, float to) {
    const double half = std::abs(static_cast<double>(to) - from) / 2;
    return static_cast<float>(from < to ? from + half : from - half);
}

PitchFlag flipped(PitchFlag flag) {
    return flag == PitchFlag::Off ? PitchFlag::On : PitchFlag::Off;
}

} // namespace

void addDashes(LineDrawing& out, std::span<const PointF> points, PitchFlag flag, const ClipBox& box,
               Color color) {
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        if (flag == PitchFlag::Off && touches(box, points[i], points[i + 1])) {
            out.primitives.push_back(SegmentPrimitive{points[i], points[i + 1], out.pen.drawWidth, color});
        }
        flag = flipped(flag);
    }
}

ArcPrimitive waveArc(PointF p, PointF q, PitchFlag flag) {
    const double dX = std::abs(static_cast<double>(q.x) - p.x);
    const double dY = std::abs(static_cast<double>(q.y) - p.y);
    const Angles off = anglesOver(p, q, dX != 0 ? std::atan(dY / dX) : 0);
    ArcPrimitive arc;
    arc.centre = {middle(p.x, q.x), middle(p.y, q.y)};
    arc.radius = std::sqrt(dY * dY + dX * dX) / 2;
    arc.start = flag == PitchFlag::Off ? off.start : off.end;
    arc.end = flag == PitchFlag::Off ? off.end : off.start;
    return arc;
}

void addWave(LineDrawing& out, std::span<const PointF> points, PitchFlag flag, const ClipBox& box,
             Color color) {
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        if (touches(box, points[i], points[i + 1])) {
            ArcPrimitive arc = waveArc(points[i], points[i + 1], flag);
            arc.width = out.pen.drawWidth;
            arc.color = color;
            out.primitives.push_back(arc);
        }
        flag = flipped(flag);
    }
}

} // namespace zeltrona::render
