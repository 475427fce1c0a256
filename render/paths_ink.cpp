#include "render/line_geometry.h"
#include "render/redraw.h"

namespace zeltrona::render {

namespace {

LinePen penOf(const DrawingState& state) {
    return {state.drawWidth, state.foreColor, state.fillColor, state.fillStyle, state.drawStyle};
}

void setPen(DrawingState& state, const LinePen& pen) {
    state.drawWidth = pen.drawWidth;
    state.foreColor = pen.foreColor;
    state.fillColor = pen.fillColor;
    state.fillStyle = pen.fillStyle;
    state.drawStyle = pen.drawStyle;
}

/// Puts one primitive on the surface.
struct Ink {
    BoardSurface& pic;

    void operator()(const SegmentPrimitive& s) const {
        pic.state.drawWidth = s.width;
        pic.line(s.from.x, s.from.y, s.to.x, s.to.y, s.color);
    }

    void operator()(const ArcPrimitive& a) const {
        pic.state.drawWidth = a.width;
        pic.arc(a.centre.x, a.centre.y, a.radius, a.color, a.start, a.end);
    }

    void operator()(const PolygonPrimitive& p) const {
        setPen(pic.state, {p.width, p.color, p.fill, FillStyle::Solid, DrawStyle::Solid});
        pic.polygon(p.points);
    }

    void operator()(const BezierPrimitive& b) const {
        pic.state.drawWidth = b.width;
        pic.state.foreColor = b.color;
        pic.polyBezier(b.points);
    }
};

LineEffort effortFor(const std::vector<document::LineRec>& lines) {
    std::size_t points = 0;
    for (const document::LineRec& line : lines) {
        points += line.pts.size();
    }
    return LineEffort::forPoints(points);
}

} // namespace

void drawPaths(Board& board, const Scene& scene, float pointerX, float pointerY) {
    if (!document::hasLines(scene.frame.lines)) {
        return;
    }
    BoardSurface& pic = board.pic;
    const ClipBox box{0, 0, static_cast<double>(pic.width()), static_cast<double>(pic.height())};
    LineDrawing drawing;
    drawing.pen = penOf(pic.state);
    drawing.effort = effortFor(scene.frame.lines);
    const LineScene lines{scene.frame.lines, scene.session.lineWidth, scene.editLineIndex, box};
    // Line by line: the pieces of thousands of lines at once would fill the memory.
    for (int i = 0; i < static_cast<int>(scene.frame.lines.size()); ++i) {
        drawing.primitives.clear();
        drawPath(drawing, lines, pointerX, pointerY, i);
        for (const LinePrimitive& primitive : drawing.primitives) {
            std::visit(Ink{pic}, primitive);
        }
    }
    setPen(pic.state, drawing.pen);
}

} // namespace zeltrona::render
