#pragma once

#include "render/board.h"
#include "render/court.h"
#include "render/marks.h"
#include "render/player_body.h"
#include "render/player_circle.h"

namespace zeltrona::render {

/// Repaints the board from the records, in stacking order, and shows the finished picture once.
/// `pointerX`, `pointerY`: free end of the line under construction; 0, 0 when none is drawn.
void redrawBoard(Board& board, const Scene& scene, float pointerX, float pointerY);

/// The movement lines of the frame.
void drawPaths(Board& board, const Scene& scene, float pointerX, float pointerY);

/// The points of the recorded paths, one dot each in the colour of lines. A list ends at its first empty
/// path.
void drawCurvePoints(Board& board, const Scene& scene);

} // namespace zeltrona::render
