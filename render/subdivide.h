#pragma once

#include "render/clip_box.h"

#include <cstdint>
#include <limits>
#include <vector>

namespace zeltrona::render {

/// Length of a dash, of a gap and of a half wave.
inline constexpr int kPitch = 5;

/// Indices of the points of a cut segment, both ends included; last < first is none.
struct PitchWindow {
    std::int64_t first = 0;
    std::int64_t last = std::numeric_limits<std::int64_t>::max();
    friend bool operator==(const PitchWindow&, const PitchWindow&) = default;
};

/// Index of the last point that cutting the segment gives; 0 for a segment of no length.
std::int64_t pitchUpperBound(float x1, float y1, float x2, float y2);

/// The points of the cut segment that belong to the stretch inside the box, with a neighbour on either side.
/// Reason: a line that runs a thousand million pixels away must cost no more than what shows of it.
PitchWindow visiblePitches(float x1, float y1, float x2, float y2, const ClipBox& box);

/// Cuts the segment into points 5 board units apart for dashes and waves.
/// Shape:  point 0 is (x1, y1), point i lies 5 * i along; the last is (x2, y2) only when the rounded length
///         is no multiple of 5. A segment of no length has one point. `points` gets those of the window
///         alone.
/// Units:  board pixels, y down; `unit` other than 1 leaves `points` as it is.
/// Reason: the last step is short rather than stretched, so that a dash keeps its length on every line. The
///         count of a diagonal comes from the exact length and its rest from the rounded one: lines in use
///         look so.
void subdivideSegment(std::vector<document::PointF>& points, float x1, float y1, float x2, float y2, int unit,
                      PitchWindow window = {});

} // namespace zeltrona::render
