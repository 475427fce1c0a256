#pragma once

#include "render/board.h"

#include <cstdint>
#include <string>

namespace zeltrona::render {

/// Leaves on `mask` a black disc of radius 9 around (13, 13) on white, and on `color` the same disc in
/// `fillColor` on black with the text, Arial bold 8, centred on it. A text wider than the disc is neither cut
/// nor shrunk. Result: non-zero on success; 0, with both surfaces as they were, when there is no ring to lay
/// over them.
std::int16_t drawPlayerC(BoardSurface& mask, BoardSurface& color, const QImage& ringMask, Color fillColor,
                         const QString& text, Color textColor);

/// A disc in a cell of 26 x 26 with a centred label and a ring; (x, y) is the left top corner of the cell. A
/// failed drawing is told, and what the working surfaces hold is copied all the same.
void drawPlayers(Board& board, float x, float y, Color fillColor, const std::string& text, Color textColor,
                 std::int16_t charset);

} // namespace zeltrona::render
