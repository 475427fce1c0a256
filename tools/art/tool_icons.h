#pragma once

#include "tools/art/vector_picture.h"

namespace zeltrona::art {

inline constexpr int kTools = 11;
inline constexpr int kToolSize = 20;

/// The sign of a tool on a grid of 20 x 20: cut, pass, dribble, screen, double line, ball, triangle, text,
/// shadow, delete, colour (0 to 10).
std::vector<Shape> toolSign(int tool, const QColor& ink);

/// The toolbox's strip: eleven pairs of cells, released and pressed, each 20 x 20 times `scale`; transparent
/// behind the released signs. Shape: a pressed cell is the released sign on the accent, moved by one pixel.
QImage drawToolStrip(const QColor& ink, int scale);

} // namespace zeltrona::art
