#include "document/number_text.h"
#include "render/bezier_path.h"
#include "render/line_end.h"
#include "render/line_scene.h"
#include "render/line_style.h"
#include "render/wave.h"

#include <algorithm>

namespace zeltrona::render {

using document::LineRec;
using document::PointF;

namespace {

PointI rounded(PointF p) {
    return {document::roundToInt32(p.x), document::roundToInt32(p.y)};
}

/// A stretch to `end` that both its control points pull to `pull`.
void addCubic(std::vector<PointI>& bezier, PointF pull, PointF end) {
    bezier.insert(bezier.end(), {rounded(pull), rounded(pull), rounded(end)});
}

/// The Bezier array of a curved line of at least one point; a single point where there is nothing to draw.
std::vector<PointI> bezierOf(const LineRec& line, bool isEditing, PointF pointer) {
    const std::vector<PointF>& pts = line.pts;
    const std::size_t cubics = (pts.size() - 1) / 2;
    const bool hasRest = (pts.size() - 1) % 2 == 1;
    std::vector<PointI> bezier{rounded(pts[0])};
    for (std::size_t k = 0; k < cubics; ++k) {
        addCubic(bezier, pts[2 * k + 1], pts[2 * k + 2]);
    }
    if (isEditing) {
        addCubic(bezier, hasRest ? pts.back() : pointer, pointer);
    } else if (hasRest) {
        addCubic(bezier, pts.back(), pts.back());
    }
    return bezier;
}

PointF single(PointI p) {
    return {static_cast<float>(p.x), static_cast<float>(p.y)};
}

/// How many of the cubics may show.
std::int64_t countSeen(const std::vector<PointI>& bezier, const ClipBox& box) {
    std::int64_t seen = 0;
    for (std::size_t i = 0; i + 3 < bezier.size(); i += 3) {
        const auto [left, right] =
            std::minmax({bezier[i].x, bezier[i + 1].x, bezier[i + 2].x, bezier[i + 3].x});
        const auto [top, bottom] =
            std::minmax({bezier[i].y, bezier[i + 1].y, bezier[i + 2].y, bezier[i + 3].y});
        seen += touches(box, single({left, top}), single({right, bottom})) ? 1 : 0;
    }
    return seen;
}

void addBezier(LineDrawing& out, std::vector<PointI> points, const ClipBox& box) {
    if (out.effort.take(countSeen(points, box) * costOfCubic(out.pen.drawWidth))) {
        out.primitives.push_back(BezierPrimitive{std::move(points), out.pen.drawWidth, out.pen.foreColor});
        return;
    }
    for (std::size_t i = 0; i + 3 < points.size(); i += 3) {
        out.primitives.push_back(
            SegmentPrimitive{single(points[i]), single(points[i + 3]), out.pen.drawWidth, out.pen.foreColor});
    }
}

/// Dashes or half waves along the curve; `cost` of one of them.
template<class Add>
void addSamples(LineDrawing& out, const std::vector<PointI>& bezier, const ClipBox& box, std::int64_t cost,
                Add add) {
    std::vector<PointF> samples;
    flattenBezierPath(bezier, samples, box, &out.effort);
    const auto seen = std::count_if(samples.begin(), samples.end(),
                                    [&box](PointF sample) { return isInside(box, sample); });
    if (out.effort.take(seen * cost)) {
        add(out, samples, PitchFlag::Off, box, out.pen.foreColor);
    } else {
        addBezier(out, bezier, box);
    }
}

void addBody(LineDrawing& out, const LineScene& scene, const LineRec& line,
             const std::vector<PointI>& bezier) {
    const ClipBox box = seenBox(scene, out.pen);
    std::vector<PointI> twin;
    switch (line.style) {
    case kPlainStyle:
    case kBarStyle:
        addBezier(out, bezier, box);
        break;
    case kDashStyle:
        addSamples(out, bezier, box, costOfDash(out.pen.drawWidth), addDashes);
        break;
    case kWaveStyle:
        addSamples(out, bezier, box, costOfHalfWave(out.pen.drawWidth), addWave);
        break;
    case kDoubleStyle:
        addBezier(out, bezier, box);
        offsetBezierPath(bezier, twin, scene.lineWidth);
        addBezier(out, std::move(twin), box);
        break;
    default:
        break;
    }
}

} // namespace

void drawCurveLine(LineDrawing& out, const LineScene& scene, float pointerX, float pointerY, int lineIndex,
                   bool isEditing) {
    const LineRec& line = lineAt(scene, lineIndex);
    const LinePen before = out.pen;
    setDrawWidth(out.pen, scene.lineWidth);
    out.pen.foreColor = line.color;
    out.pen.drawStyle = DrawStyle::Solid;
    const std::vector<PointI> bezier = bezierOf(line, isEditing, {pointerX, pointerY});
    if (bezier.size() == 1) {
        return;
    }
    addBody(out, scene, line, bezier);
    const PointI last = bezier[bezier.size() - 1];
    const PointI beforeLast = bezier[bezier.size() - 2];
    drawLineEnd(out, static_cast<float>(beforeLast.x), static_cast<float>(beforeLast.y),
                static_cast<float>(last.x), static_cast<float>(last.y), {line.color, scene.lineWidth},
                line.style);
    out.pen.drawWidth = before.drawWidth;
    out.pen.foreColor = before.foreColor;
    out.pen.drawStyle = before.drawStyle;
}

} // namespace zeltrona::render
