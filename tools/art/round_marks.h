#pragma once

#include <QImage>

namespace zeltrona::art {

/// The black ring around a player's disc, 26 x 26, one bit: two pixels thick, about 20 across, around the
/// middle of pixel (13, 13), half on the disc of radius 9 and half outside it, so that no floor shows between
/// the two.
QImage drawPlayerRing();

/// The ball, 26 x 26, 24 bits, on black: exactly the disc of radius 7 around pixel (13, 13), 14 pixels of
/// orange and its dark rim, seams of a darker tone, lit from the upper left.
QImage drawBall();

} // namespace zeltrona::art
