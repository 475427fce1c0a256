#pragma once

#include "render/pen.h"

#include <span>

namespace zeltrona::render {

/// A start and three points for each cubic; points of an unfinished cubic at the end do not count.
/// Width 1 draws a thin unbroken chain of pixels, wider pens a band with round ends and joins.
void strokeBeziers(const PixelView& view, std::span<const PointI> points, Pen pen);

} // namespace zeltrona::render
