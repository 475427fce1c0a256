#pragma once

#include "render/drawing_basics.h"
#include "render/pixel_view.h"

namespace zeltrona::render {

/// What a stroke is drawn with. Widths below 1 draw as 1.
struct Pen {
    int width = 1;
    std::uint32_t pixel = kOpaque;
};

/// A place between pixels; whole numbers are the middles of pixels.
struct PointD {
    double x = 0.0;
    double y = 0.0;
};

/// A straight stroke, both ends included, the same pixels from either end.
/// Width 1: one pixel to each step of the longer axis; a half step goes to the nearer end's side, so that a
/// line and its mirror image mirror each other. Wider:   all pixels whose middle lies within half the width
/// of the segment, so `width` pixels across at every
///          angle, with round ends; a pen of even width leans up and left by half a pixel.
void strokeSegment(const PixelView& view, PointI from, PointI to, Pen pen);

/// Whether a stroke has filled the whole view, so that more of its colour changes nothing.
enum class Stroke { Part, Whole };

/// The wide stroke of strokeSegment between places that need not be whole.
Stroke strokeWide(const PixelView& view, PointD from, PointD to, Pen pen);

/// The wide pen set down once, on a place that need not be whole.
void strokeDisc(const PixelView& view, PointD at, Pen pen);

/// A dot as wide as the pen.
void strokeDot(const PixelView& view, PointI at, Pen pen);

} // namespace zeltrona::render
