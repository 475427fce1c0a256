#include "tools/art/round_lines.h"

#include <algorithm>
#include <cmath>

namespace zeltrona::art {

bool isRing(double dx, double dy, double outer, double weight) {
    const double distance = std::hypot(dx, dy);
    return outer > 0.0 && outer - weight < distance && distance <= outer;
}

bool isThinCircle(double dx, double dy, double radius) {
    const double far = std::max(std::abs(dx), std::abs(dy));
    const double near = std::min(std::abs(dx), std::abs(dy));
    if (near > radius) {
        return false;
    }
    const double line = std::sqrt(radius * radius - near * near);
    return line - 0.5 < far && far <= line + 0.5;
}

bool isCircleLine(double dx, double dy, double outer, int weight) {
    if (weight == 1) {
        return outer > 0.5 && isThinCircle(dx, dy, outer - 0.5);
    }
    return isRing(dx, dy, outer, weight);
}

} // namespace zeltrona::art
