#include "render/line_end.h"
#include "render/line_scene.h"
#include "render/line_style.h"
#include "render/subdivide.h"
#include "render/wave.h"

#include <cmath>

namespace zeltrona::render {

using document::Color;
using document::PointF;

namespace {

void addSegment(LineDrawing& out, PointF from, PointF to, Color color) {
    out.primitives.push_back(SegmentPrimitive{from, to, out.pen.drawWidth, color});
}

/// The visible dashes or half waves of a segment; `cost` of one of its pitches.
template<class Add>
void addPitches(LineDrawing& out, PointF from, PointF to, const ClipBox& box, Color color, std::int64_t cost,
                Add add) {
    const PitchWindow window = visiblePitches(from.x, from.y, to.x, to.y, box);
    const std::int64_t pitches = window.last - window.first;
    if (pitches > 0 && !out.effort.take(pitches * cost)) {
        addSegment(out, from, to, color);
        return;
    }
    std::vector<PointF> points;
    subdivideSegment(points, from.x, from.y, to.x, to.y, 1, window);
    add(out, points, window.first % 2 == 0 ? PitchFlag::Off : PitchFlag::On, box, color);
}

PointF shifted(PointF p, double x, double y) {
    return {static_cast<float>(p.x + x), static_cast<float>(p.y + y)};
}

/// The line beside the first one of a double line, `distance` away.
void addTwin(LineDrawing& out, PointF from, PointF to, int distance, Color color) {
    double x = 0;
    double y = distance;
    if (from.y != to.y && from.x == to.x) {
        x = distance;
        y = 0;
    } else if (from.y != to.y) {
        const double dx = static_cast<double>(to.x) - from.x;
        const double dy = static_cast<double>(to.y) - from.y;
        const double turned = 3.14 / 2 - std::atan(std::abs(dy / dx));
        x = distance * std::cos(turned) * (runsAlongFalling(from, to) ? -1 : 1);
        y = distance * std::sin(turned);
    }
    addSegment(out, shifted(from, x, y), shifted(to, x, y), color);
}

/// False when the line ends here without its end.
bool addBody(LineDrawing& out, const LineScene& scene, PointF from, PointF to, Color color, int style) {
    const ClipBox box = seenBox(scene, out.pen);
    if (style == kDashStyle) {
        if (pitchUpperBound(from.x, from.y, to.x, to.y) == 0) {
            return false;
        }
        addPitches(out, from, to, box, color, costOfDash(out.pen.drawWidth), addDashes);
    } else if (style == kWaveStyle) {
        addPitches(out, from, to, box, color, costOfHalfWave(out.pen.drawWidth), addWave);
    } else {
        addSegment(out, from, to, color);
        if (style == kDoubleStyle) {
            addTwin(out, from, to, scene.lineWidth + 1, color);
        }
    }
    return true;
}

} // namespace

void drawLineSegment(LineDrawing& out, const LineScene& scene, float pointerX, float pointerY, int lineIndex,
                     int fromIndex, int toIndex, bool isLast, int style) {
    const document::LineRec& line = lineAt(scene, lineIndex);
    const PointF from = line.pts[static_cast<std::size_t>(fromIndex)];
    const PointF to =
        toIndex == -1 ? PointF{pointerX, pointerY} : line.pts[static_cast<std::size_t>(toIndex)];
    const int widthBefore = out.pen.drawWidth;
    setDrawWidth(out.pen, scene.lineWidth);
    if (!addBody(out, scene, from, to, line.color, style)) {
        return;
    }
    if (isLast) {
        drawLineEnd(out, from.x, from.y, to.x, to.y, {line.color, scene.lineWidth}, style);
    }
    out.pen.drawWidth = widthBefore;
}

} // namespace zeltrona::render
