#pragma once

#include <QPainterPath>

namespace zeltrona::art {

/// The word ZELTRONA as lines to be stroked, capitals 10 high, base line at y = 10, first letter at x = 0; no
/// font is asked. kWordmarkWidth is where the last letter ends.
QPainterPath wordmark();

inline constexpr double kWordmarkWidth = 80.0;

} // namespace zeltrona::art
