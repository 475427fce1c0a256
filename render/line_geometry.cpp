#include "render/line_geometry.h"

#include "document/frame_records.h"
#include "render/line_scene.h"
#include "render/line_style.h"

namespace zeltrona::render {

using document::LineRec;

namespace {

/// The segments between the points; only the last point of a finished line has an end.
void drawSegments(LineDrawing& out, const LineScene& scene, float pointerX, float pointerY, int i) {
    const LineRec& line = lineAt(scene, i);
    const int upperBound = static_cast<int>(line.pts.size()) - 1;
    const bool isEditing = i == scene.editLineIndex;
    for (int j = 0; j < upperBound; ++j) {
        const bool isLast = !isEditing && j + 1 == upperBound;
        drawLineSegment(out, scene, pointerX, pointerY, i, j, j + 1, isLast, line.style);
    }
    if (isEditing) {
        drawLineSegment(out, scene, pointerX, pointerY, i, upperBound, -1, true, line.style);
    }
}

} // namespace

void drawPath(LineDrawing& out, const LineScene& scene, float pointerX, float pointerY, int lineIndex) {
    const LineRec& line = lineAt(scene, lineIndex);
    if (line.pts.empty()) {
        return;
    }
    if (line.curved) {
        drawCurveLine(out, scene, pointerX, pointerY, lineIndex, lineIndex == scene.editLineIndex);
    } else {
        drawSegments(out, scene, pointerX, pointerY, lineIndex);
    }
}

void drawPaths(LineDrawing& out, const LineScene& scene, float pointerX, float pointerY) {
    if (!document::hasLines(scene.lines)) {
        return;
    }
    for (int i = 0; i < static_cast<int>(scene.lines.size()); ++i) {
        drawPath(out, scene, pointerX, pointerY, i);
    }
}

} // namespace zeltrona::render
