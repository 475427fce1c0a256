#pragma once

#include <QImage>

namespace zeltrona::art {

/// The black ring around a player's disc, 26 x 26, one bit: 20 pixels across and two thick around (13, 13),
/// one pixel on the disc of radius 9 and one outside it, so that no floor shows between the two.
QImage drawPlayerRing();

/// The ball, 26 x 26, 24 bits, on black: the disc of radius 7 around (13, 13) that the board cuts out for it,
/// orange in a dark rim, seams of a darker tone, lit from the upper left.
QImage drawBall();

} // namespace zeltrona::art
