#pragma once

#include "tools/plays/moments.h"

namespace zeltrona::plays {

/// How a player stands in a frame. `angle`: degrees counter-clockwise from the right, 15 to 360 in steps of
/// 15; `pose`: 0 standing, 1 arms forward, 2 arms wide, 3 dribbling.
struct Posture {
    std::int16_t angle = 90;
    std::int16_t pose = 0;
};

/// Runners face their way, the ball's owner what he is about to do, all others the ball. Circles face up and
/// stand.
Posture postureOf(const PlayScript& play, const CourtMap& map, const Moment& moment, const Frame& frame,
                  Who who);

/// The middle of a ball: at the hand of its holder, else where it lies.
document::PointF ballMiddle(const PlayScript& play, const CourtMap& map, const Moment& moment,
                            const Frame& frame, std::size_t ball);

} // namespace zeltrona::plays
