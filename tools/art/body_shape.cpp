#include "tools/art/body_shape.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zeltrona::art {

namespace {

double dot(Spot a, Spot b) {
    return a.x * b.x + a.y * b.y;
}

/// Where between a (0) and b (1) the spot's foot lies.
double footOn(Spot a, Spot b, Spot at) {
    const Spot side = b - a;
    return std::clamp(dot(at - a, side) / dot(side, side), 0.0, 1.0);
}

double distanceToConvex(const std::vector<Spot>& outline, Spot at) {
    double nearest = std::numeric_limits<double>::max();
    bool inside = true;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const Spot a = outline[i];
        const Spot b = outline[(i + 1) % outline.size()];
        nearest = std::min(nearest, length(at - (a + (b - a) * footOn(a, b, at))));
        const Spot side = b - a;
        const Spot toSpot = at - a;
        inside = inside && side.x * toSpot.y - side.y * toSpot.x <= 0.0;
    }
    return inside ? -nearest : nearest;
}

double distanceToLimb(const Limb& limb, Spot at) {
    double nearest = length(at - limb.joints.back()) - limb.hand;
    for (std::size_t i = 0; i + 1 < limb.joints.size(); ++i) {
        const Spot a = limb.joints[i];
        const Spot b = limb.joints[i + 1];
        nearest = std::min(nearest, length(at - (a + (b - a) * footOn(a, b, at))) - limb.radius);
    }
    return nearest;
}

std::vector<Spot> mirrored(std::vector<Spot> joints) {
    for (Spot& joint : joints) {
        joint.x = -joint.x;
    }
    return joints;
}

constexpr double kArm = 2.2;
constexpr double kHand = 3.0;

std::vector<Limb> bothArms(const std::vector<Spot>& right) {
    return {{right, kArm, kHand}, {mirrored(right), kArm, kHand}};
}

std::vector<Limb> armsOf(Pose pose) {
    switch (pose) {
    case Pose::ArmsForward:
        return bothArms({{8.0, 3.0}, {10.5, 10.0}, {4.2, 19.3}});
    case Pose::ArmsWide:
        return bothArms({{7.5, 1.5}, {14.0, 2.0}, {18.2, 8.0}});
    case Pose::Dribbling:
        return {{{{8.0, 2.0}, {12.0, 8.5}, {7.5, 18.5}}, kArm, kHand},
                {{{-8.0, 1.5}, {-14.0, 4.0}, {-10.5, 12.0}}, kArm, kHand}};
    case Pose::Standing:
        break;
    }
    return bothArms({{8.0, 1.0}, {12.2, 2.5}, {11.2, 11.0}});
}

} // namespace

BodyShape bodyShape(Pose pose) {
    BodyShape shape;
    shape.jersey = {{-2.6, -4.4}, {-4.3, 0.2}, {-3.4, 1.8}, {3.4, 1.8}, {4.3, 0.2}, {2.6, -4.4}};
    shape.jerseyRound = 4.4;
    shape.head = {0.0, 9.9};
    shape.headRadius = 4.7;
    shape.arms = armsOf(pose);
    return shape;
}

double distanceToJersey(const BodyShape& shape, Spot at) {
    return distanceToConvex(shape.jersey, at) - shape.jerseyRound;
}

double distanceToHead(const BodyShape& shape, Spot at) {
    return length(at - shape.head) - shape.headRadius;
}

double distanceToLimbs(const std::vector<Limb>& limbs, Spot at) {
    double nearest = std::numeric_limits<double>::max();
    for (const Limb& limb : limbs) {
        nearest = std::min(nearest, distanceToLimb(limb, at));
    }
    return nearest;
}

} // namespace zeltrona::art
