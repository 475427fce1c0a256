#pragma once

#include "render/line_primitives.h"

#include <cstdint>

namespace zeltrona::render {

/// What every movement line of a frame is painted with.
struct LineLook {
    document::Color color = 0;
    std::int16_t lineWidth = 1;
};

/// The end of a line for its last stretch from (x1, y1) to (x2, y2): a bar for style 3, else an arrowhead,
/// over both lines for style 4. Its width is that of the drawing's pen, which keeps the colour as its fill
/// afterwards.
/// A stretch of no length has an arrow that points left, or an upright bar: plays in use are drawn so.
void drawLineEnd(LineDrawing& out, float x1, float y1, float x2, float y2, const LineLook& look, int style);

} // namespace zeltrona::render
