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
    double nearest = std::numeric_limits<double>::max();
    for (std::size_t i = 0; i + 1 < limb.joints.size(); ++i) {
        const Spot a = limb.joints[i];
        const Spot b = limb.joints[i + 1];
        const double foot = footOn(a, b, at);
        const bool last = i + 2 == limb.joints.size();
        const double radius = last ? limb.radius + (limb.tip - limb.radius) * foot : limb.radius;
        nearest = std::min(nearest, length(at - (a + (b - a) * foot)) - radius);
    }
    return nearest;
}

std::vector<Spot> mirrored(std::vector<Spot> joints) {
    for (Spot& joint : joints) {
        joint.x = -joint.x;
    }
    return joints;
}

constexpr double kArm = 2.3;
constexpr double kHand = 2.3;

std::vector<Limb> bothArms(const std::vector<Spot>& right) {
    return {{right, kArm, kHand}, {mirrored(right), kArm, kHand}};
}

std::vector<Limb> armsOf(Pose pose) {
    switch (pose) {
    case Pose::ArmsForward:
        return bothArms({{7.5, 2.0}, {9.0, 8.5}, {4.0, 17.5}});
    case Pose::ArmsWide:
        return bothArms({{7.5, 2.0}, {14.0, 2.5}, {19.0, 8.5}});
    case Pose::Dribbling:
        return {{{{7.5, 2.0}, {11.0, 8.0}, {9.0, 17.5}}, kArm, kHand},
                {{{-7.5, 2.0}, {-12.5, 4.5}, {-11.0, 10.5}}, kArm, kHand}};
    case Pose::Standing:
        break;
    }
    return bothArms({{7.5, 1.0}, {11.5, 2.0}, {11.0, 9.0}});
}

} // namespace

BodyShape bodyShape(Pose pose) {
    BodyShape shape;
    shape.jersey = {{-3.0, -6.5}, {-5.5, 1.0}, {-4.5, 2.0}, {4.5, 2.0}, {5.5, 1.0}, {3.0, -6.5}};
    shape.jerseyRound = 3.0;
    shape.head = {0.0, 8.0};
    shape.headRadius = 4.4;
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
