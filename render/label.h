#pragma once

#include "render/board_surface.h"

namespace zeltrona::render {

/// Prints the label of a player in Arial bold 8, centred on `middle`; an empty one prints nothing. The
/// drawing state of the surface is as before afterwards.
void printLabel(BoardSurface& surface, const QString& text, Color color, PointI middle);

} // namespace zeltrona::render
