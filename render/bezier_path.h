#pragma once

#include "render/clip_box.h"
#include "render/drawing_basics.h"
#include "render/line_effort.h"

#include <span>
#include <vector>

namespace zeltrona::render {

// A Bezier array: a start point and three whole points for each cubic. Points beyond the last whole cubic are
// not looked at.

/// The cubic at `t`, in doubles, stored as singles. `t` may lie outside 0 to 1.
void bezierPoint(PointI p0, PointI p1, PointI p2, PointI p3, document::PointF& point, double t);

/// Samples a Bezier array at a distance of 5, give or take 0.2, for dashes and waves. `points` is made anew.
/// Shape:  the first point is the array's start; a cubic ends in its own end point when a sample comes near
///         it. One that is shorter than a step ends in its sample at t = 1.1, a little past its end.
///         No more than 32,003.
/// Box:    the samples behind the last one that can be seen are left out; those that stay are the same.
/// Effort: the walk ends, as at its longest, when the samples outside the box have used it up.
/// Reason: distances are taken between neighbours, so the walk can't begin in the middle; where singles lie
///         further apart than a step, far outside any board, the cubic ends.
void flattenBezierPath(std::span<const PointI> bezier, std::vector<document::PointF>& points,
                       const ClipBox& box = {}, LineEffort* effort = nullptr);

/// Shifts a Bezier array sideways by lineWidth + 1 for the second line of a double curve. `shifted` is made
/// anew. The shift goes by the octant of each end's slope and not along its normal: the twins may touch on
/// tight bends.
/// Units:  slopes are 16-bit differences, which wrap.
void offsetBezierPath(std::span<const PointI> bezier, std::vector<PointI>& shifted, int lineWidth);

} // namespace zeltrona::render
