#include "render/body_sprite.h"

namespace zeltrona::render {

namespace {

constexpr int kSteps = 6;
constexpr int kDegreesPerStep = 15;

struct SplitAngle {
    int base = 0;
    int rest = 0;
};

SplitAngle splitOf(int angle) {
    if (angle == 0) {
        return {270, 90};
    }
    if (angle < 0 || angle > 360) {
        return {0, angle};
    }
    const int base = (angle - 1) / 90 * 90;
    return {base, angle - base};
}

int stepOf(int rest) {
    const bool known = rest >= 1 && rest <= 90;
    return known ? (rest - 1) / kDegreesPerStep : kSteps - 1;
}

} // namespace

BodySprite bodySpriteOf(std::int16_t angle, std::int16_t body) {
    const SplitAngle split = splitOf(angle);
    const int step = stepOf(split.rest);
    const int pose = body >= 0 && body <= 3 ? body : 0;
    return {static_cast<std::int16_t>(split.base), pose * kSteps + step + 1, step + 1};
}

} // namespace zeltrona::render
