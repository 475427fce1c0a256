#pragma once

#include "render/board_surface.h"
#include "render/quarter_turns.h"

namespace zeltrona::render {

/// The surfaces on which players and balls are put together. None keeps anything between two calls: each call
/// repaints them completely. They stay only so that nothing is made anew for each player.
struct WorkingSurfaces {
    WorkingSurfaces();
    // A copy would start to remember anew, at the cost of a slow redraw each time.
    WorkingSurfaces(const WorkingSurfaces&) = delete;
    WorkingSurfaces& operator=(const WorkingSurfaces&) = delete;
    WorkingSurfaces(WorkingSurfaces&&) = default;
    WorkingSurfaces& operator=(WorkingSurfaces&&) = default;

    BoardSurface pMask{26, 26}; ///< mask of a circle player or a ball
    BoardSurface p{26, 26};     ///< colours of a circle player
    QuarterTurns turns;         ///< shapes of bodies as turned lately
};

} // namespace zeltrona::render
