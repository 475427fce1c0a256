#pragma once

#include "document/frame_records.h"
#include "tools/zpf/check/check_desk.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace zeltrona::zpf {

/// How many players the frames so far have shown, carried from one frame to the next.
struct TeamSizes {
    std::int16_t frame = 0; ///< the one they were counted in; 0 ahead of the first
    std::size_t off = 0;
    std::size_t def = 0;
};

/// Checks one section `Frame<n>` that can be reached. Call it for the frames in rising order with the same
/// `sizes`.
void checkFrame(const CheckDesk& desk, std::int16_t frame, TeamSizes& sizes);

} // namespace zeltrona::zpf
