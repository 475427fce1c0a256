#pragma once

#include "tools/art/vector_picture.h"

namespace zeltrona::art {

/// The mark on a grid of 64 x 64: a ball with the letter Z on it, drawn as a player's cut with its arrowhead.
/// `seams` off gives the plain form for small sizes and for one colour.
enum class Seams { On, Off };
std::vector<Shape> mark(const QColor& ball, const QColor& cut, Seams seams);

/// The application's icon, 64 units square; the form for `pixels` and less leaves the seams out where they
/// would blur.
VectorPicture appIcon(int pixels);

/// The picture above the play selection, 320 x 120: the mark beside the name.
VectorPicture logo(const QColor& ink);

/// The first window, 400 x 200: mark and name on a night court.
VectorPicture splash();

/// The logo for paper and reports, 173 x 53 pixels, on white.
QImage drawExportLogo();

} // namespace zeltrona::art
