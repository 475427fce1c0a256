#pragma once

#include "document/records.h"

namespace zeltrona::render {

// A line's style is the number of the tool that drew it. Any other number is a plain line while straight, and
// has its end alone while curved.
inline constexpr int kPlainStyle = 0;
inline constexpr int kDashStyle = 1;
inline constexpr int kWaveStyle = 2;
inline constexpr int kBarStyle = 3;
inline constexpr int kDoubleStyle = 4;

/// Whether x and y grow together or shrink together: a slope that falls as seen, y growing downwards.
inline bool runsAlongFalling(document::PointF from, document::PointF to) {
    return (from.x < to.x && from.y < to.y) || (from.x > to.x && from.y > to.y);
}

} // namespace zeltrona::render
