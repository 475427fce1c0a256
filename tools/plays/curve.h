#pragma once

#include "document/records.h"

#include <vector>

namespace zeltrona::plays {

/// The points of a curved line through `from` and `to`, pulled by `via`: on the curve, control, on the curve
/// ... Reason: the board reads a curved line's points in threes; a place in the middle joins two pulls
/// smoothly.
std::vector<document::PointF> curvePoints(document::PointF from, const std::vector<document::PointF>& via,
                                          document::PointF to);

/// A run along such a curve, as a hand records it: a point a tick, slow at both ends, 3 units a tick between
/// them. Shape:  the first point is the start, the last the end exactly; the others lie on quarters of a
/// unit. Reason: 3 units a tick is the speed of a straight move, so that runners of both kinds look alike.
std::vector<document::PointF> naturalRun(const std::vector<document::PointF>& curve);

/// To the nearest quarter of a unit, which is exact in the file.
document::PointF quartered(document::PointF p);

} // namespace zeltrona::plays
