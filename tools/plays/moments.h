#pragma once

#include "tools/plays/court_map.h"
#include "tools/plays/play_script.h"

#include <optional>
#include <vector>

namespace zeltrona::plays {

/// Half of a player's picture: 13 for circles, 25 for bodies.
float halfPicture(const Look& look);

/// Where one ball is: in somebody's hands or on a place of the floor.
struct BallState {
    std::optional<Who> holder;
    document::PointF spot;
};

/// Who stands where as a frame begins. Units: middles of pictures in board units, so that left and top are
/// whole.
struct Moment {
    std::vector<document::PointF> offence;
    std::vector<document::PointF> defence;
    std::vector<BallState> balls;
};

document::PointF standingOf(const Moment& moment, Who who);

/// The index of the ball that he holds, or none.
std::optional<std::size_t> ballHeldBy(const Moment& moment, Who who);

/// The moment at which each frame begins, and one more where the last frame's moves would lead.
std::vector<Moment> momentsOf(const PlayScript& play);

} // namespace zeltrona::plays
