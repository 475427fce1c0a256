#pragma once

#include "tools/art/body_shape.h"

#include <QImage>

namespace zeltrona::art {

inline constexpr int kBodySize = 50;

/// The three shapes of one sprite, each 50 x 50 with black for the shape.
/// Shape:  skin and jersey never touch and lie inside the mask; what of the mask neither covers becomes the
/// black
///         outline, one pixel and a little, between jersey, skin and floor.
struct BodyMasks {
    QImage skin;
    QImage jersey;
    QImage mask;
};

/// `degrees` is where the player faces, counter-clockwise from the right as seen; `scale` 1 is the board's
/// size, `size` the side of the square pictures with the figure's origin in the middle.
BodyMasks drawBody(Pose pose, double degrees, double scale = 1.0, int size = kBodySize);

/// The masks with their colours, the rest transparent.
QImage colourBody(const BodyMasks& masks, QRgb skin, QRgb jersey);

/// The board's sheets: image k (from 1) at y = (k - 1) * 50. Skins and masks: four poses of six steps, 15 to
/// 90 degrees; jerseys: the six steps.
BodyMasks drawBodySheets();

} // namespace zeltrona::art
