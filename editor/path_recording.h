#pragma once

#include "document/records.h"

#include <cstdint>
#include <vector>

namespace zeltrona::editor {

enum class PathPoint { Recorded, PathFull };

/// Adds a point to the path of an owner; the first path of that owner counts, and one is made when there is
/// none. A path holds 902 points at most: it takes one more while the index of its last is not above 900. An
/// owner above 255 can't be kept with a path, and nothing is recorded for it.
PathPoint recordPathPoint(std::vector<document::PathRec>& paths, std::int16_t owner, document::PointF place);

} // namespace zeltrona::editor
