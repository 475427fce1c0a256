#pragma once

#include "render/clip_box.h"
#include "render/line_primitives.h"

#include <cstdint>
#include <vector>

namespace zeltrona::render {

/// The movement lines of a frame, how they are painted, and where they can be seen.
struct LineScene {
    const std::vector<document::LineRec>& lines;
    std::int16_t lineWidth = 1;      ///< below 1 the pen keeps the width that it has
    std::int16_t editLineIndex = -1; ///< line under construction, -1 for none
    ClipBox box; ///< dashes and waves outside it are left out; without it far points cost dearly
};

// The procedures append to `out` what they paint, in painting order, and leave its pen as the surface keeps
// it.
// A line under construction has a rubber band from its last point to the pointer, and its end stands there.

/// All lines; nothing when there is no line.
void drawPaths(LineDrawing& out, const LineScene& scene, float pointerX, float pointerY);

/// One line. A line without points shows nothing.
void drawPath(LineDrawing& out, const LineScene& scene, float pointerX, float pointerY, int lineIndex);

/// One segment of a line that isn't curved, with the line's end when it is the last. `toIndex` -1: to the
/// pointer. A dashed segment of no length shows nothing, its end neither, and leaves the pen at the lines'
/// width.
void drawLineSegment(LineDrawing& out, const LineScene& scene, float pointerX, float pointerY, int lineIndex,
                     int fromIndex, int toIndex, bool isLast, int style);

/// A whole curved line: points 0, 2, 4 are passed through, points 1, 3, 5 pull the curve.
/// One of a single point that isn't under construction shows nothing and leaves the pen as a curve sets it.
void drawCurveLine(LineDrawing& out, const LineScene& scene, float pointerX, float pointerY, int lineIndex,
                   bool isEditing);

} // namespace zeltrona::render
