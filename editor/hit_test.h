#pragma once

#include "document/frame_records.h"

#include <cstdint>

namespace zeltrona::editor {

enum class Side { Off, Def };

/// True inside the box and on all four edges, so that a box of 26 is 27 pixels across.
bool pointInBox(std::int16_t boxX, std::int16_t boxY, std::int16_t width, std::int16_t height, std::int16_t x,
                std::int16_t y);

/// Where the body lies within the 50 by 50 picture of a player, distances from its left top corner, all four
/// edges included. The rectangles are irregular since they follow the drawn bodies.
struct BodyRectangle {
    std::int16_t left = 0;
    std::int16_t right = 0;
    std::int16_t top = 0;
    std::int16_t bottom = 0;
    friend bool operator==(const BodyRectangle&, const BodyRectangle&) = default;
};

/// The rectangle of the facing, in degrees; an angle outside 1 to 360 has that of 90.
BodyRectangle bodyRectangle(std::int16_t angle);

/// What a press at (x, y) meets of a player that is drawn as a body: 0 nothing, 1 the body, 2 the hand, which
/// is all of the 50 by 50 picture that is not body. An index without a player is a miss.
int hitBodyHand(const document::FrameRecords& records, Side side, std::int16_t index, std::int16_t x,
                std::int16_t y);

/// Degrees, 0 to 360, of the point around the centre of the player's 50 by 50 picture, counter-clockwise from
/// the right as seen; 90 on the centre itself and for an index without a player. Reason: half a turn counts
/// as 3.14, which the steps of hands in use rest on.
std::int16_t handAngle(const document::FrameRecords& records, Side side, std::int16_t index, std::int16_t x,
                       std::int16_t y);

} // namespace zeltrona::editor
