#pragma once

#include "document/records.h"
#include "render/board.h"

#include <cstdint>
#include <vector>

namespace zeltrona::render {

// Each drawer paints nothing and touches nothing when its array has no data, and leaves the drawing state of
// the board as it was, but for what is told.

/// Filled ellipses; `w` and `h` of a shadow are its second corner.
void drawShadows(Board& board, const std::vector<document::ShadowRec>& shadows);

/// Outlines with a pen of 2: a base of 12 from (x, y) to the right, the tip 12 above its middle.
void drawTriangles(Board& board, const std::vector<document::TriangleRec>& triangles);

/// Texts, each with the lower left corner of its block at (x, y). The board's font keeps the character set.
void drawTextPictures(Board& board, const std::vector<document::TxtPicRec>& txtPics,
                      std::int16_t fontCharset);

/// Balls of 14 pixels; (x, y) is the lowest point of one, and its middle lies 7 above.
void drawBalls(Board& board, const std::vector<document::BallRec>& balls);

/// One ball without any test of presence.
void drawBallAt(Board& board, float x, float y);

} // namespace zeltrona::render
