#pragma once

#include "tools/art/pixel_grid.h"

#include <vector>

namespace zeltrona::art {

enum class Pose { Standing, ArmsForward, ArmsWide, Dribbling };

inline constexpr int kPoses = 4;
inline constexpr int kAngleSteps = 6;

/// An arm: a line from the shoulder over the elbow to the wrist, `radius` its half thickness, with a round
/// hand around its end.
struct Limb {
    std::vector<Spot> joints;
    double radius = 0.0;
    double hand = 0.0;
};

/// A player leaning forward, seen from above.
/// Units:  pixels at the board's size; x to the player's right, y straight ahead, the origin in the middle of
/// the
///         sprite, where the label stands. The back lies under the origin, head and hands in front of it.
/// Shape:  the jersey and the head are the same in all poses, as the jersey's picture knows no pose.
struct BodyShape {
    std::vector<Spot> jersey; ///< convex outline, to be widened by `jerseyRound`
    double jerseyRound = 0.0;
    Spot head;
    double headRadius = 0.0;
    std::vector<Limb> arms; ///< partly under the jersey
};

BodyShape bodyShape(Pose pose);

/// Distances to the outlines in pixels, negative inside.
double distanceToJersey(const BodyShape& shape, Spot at);
double distanceToHead(const BodyShape& shape, Spot at);
double distanceToLimbs(const std::vector<Limb>& limbs, Spot at);

} // namespace zeltrona::art
