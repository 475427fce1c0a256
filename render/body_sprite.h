#pragma once

#include <cstdint>

namespace zeltrona::render {

/// Which shapes make a body's sprite, and how far they are turned.
struct BodySprite {
    std::int16_t baseAngle = 0; ///< 0, 90, 180 or 270 degrees, counter-clockwise
    int skinAndMask = 1;        ///< number in the lists of skins and masks, 1 to 24
    int shirt = 1;              ///< number in the list of shirts, 1 to 6
    friend bool operator==(const BodySprite&, const BodySprite&) = default;
};

/// Angles go in steps of 15 degrees, each counting from just above the step before: 1 to 15 are one step, 16
/// to 30 the next. 0 shows what 360 shows. An angle outside 0 to 360 shows the last step without a turn, and
/// a pose outside 0 to 3 shows pose 0.
BodySprite bodySpriteOf(std::int16_t angle, std::int16_t body);

} // namespace zeltrona::render
