#pragma once

#include "render/pen.h"

namespace zeltrona::render {

/// Part of a circle from `start` to `end`, radians, counter-clockwise as seen on a surface whose y grows
/// downwards.
struct ArcShape {
    PointD middle;
    double radius = 0.0;
    double start = 0.0;
    double end = 0.0;
};

/// Width 1: a thin unbroken chain of pixels, both ends included. Wider: all pixels whose middle lies within
/// half the width of the arc, with round ends. What is symmetric in the shape is so in the pixels.
void strokeArc(const PixelView& view, const ArcShape& arc, Pen pen);

} // namespace zeltrona::render
