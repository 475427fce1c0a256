#include "document/number_text.h"
#include "render/bezier_path.h"
#include "render/line_end.h"
#include "render/line_scene.h"
#include "render/line_style.h"
#include "render/wave.h"

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

void addBezier(LineDrawing& out, std::vector<PointI> points) {
    out.primitives.push_back(BezierPrimitive{std::move(points), out.pen.drawWidth, out.pen.foreColor});
}

void addBody(LineDrawing& out, const LineScene& scene, const LineRec& line,
             const std::vector<PointI>& bezier) {
    const ClipBox box = seenBox(scene, out.pen);
    std::vector<PointF> samples;
    std::vector<PointI> twin;
    switch (line.style) {
    case kPlainStyle:
    case kBarStyle:
        addBezier(out, bezier);
        break;
    case kDashStyle:
        flattenBezierPath(bezier, samples, box);
        addDashes(out, samples, PitchFlag::Off, box, line.color);
        break;
    case kWaveStyle:
        flattenBezierPath(bezier, samples, box);
        addWave(out, samples, PitchFlag::Off, box, line.color);
        break;
    case kDoubleStyle:
        addBezier(out, bezier);
        offsetBezierPath(bezier, twin, scene.lineWidth);
        addBezier(out, std::move(twin));
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
