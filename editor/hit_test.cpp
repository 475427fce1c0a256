#include "editor/hit_test.h"

#include "document/number_text.h"
#include "editor/array_elements.h"

#include <array>
#include <cmath>

namespace zeltrona::editor {

using document::FrameRecords;
using document::PlayerRec;
using document::roundToInt16;

namespace {

constexpr int kPictureSide = 50;
constexpr int kStepsInQuadrant = 6;

/// By quadrant of the facing, then by steps of 15 degrees within it.
constexpr std::array<BodyRectangle, 24> kBodyRectangles{{
    {15, 29, 19, 34}, {15, 30, 19, 34}, {14, 30, 22, 36}, {15, 31, 21, 37}, {15, 31, 20, 36},
    {17, 32, 20, 35}, {18, 33, 21, 36}, {17, 32, 20, 35}, {20, 34, 20, 35}, {18, 34, 20, 36},
    {17, 33, 20, 36}, {18, 33, 18, 33}, {20, 35, 18, 33}, {18, 33, 18, 33}, {18, 33, 18, 32},
    {17, 33, 17, 33}, {15, 31, 16, 32}, {17, 32, 15, 30}, {16, 32, 16, 31}, {16, 31, 17, 32},
    {16, 29, 18, 33}, {14, 30, 18, 34}, {13, 29, 18, 34}, {15, 35, 19, 34},
}};

const PlayerRec* playerAt(const FrameRecords& records, Side side, std::int16_t index) {
    const auto& players = side == Side::Off ? records.offPlayers : records.defPlayers;
    return elementAt(players, index);
}

/// 1 to 4, counter-clockwise from the upper right as seen. The axes go to the quarters unevenly, and the
/// later of two matching tests counts.
int quarterOf(int dx, int dy) {
    int quarter = 1;
    if (dx < 0 && dy <= 0) {
        quarter = 2;
    }
    if (dx <= 0 && dy > 0) {
        quarter = 3;
    }
    if (dx > 0 && dy >= 0) {
        quarter = 4;
    }
    return quarter;
}

} // namespace

bool pointInBox(std::int16_t boxX, std::int16_t boxY, std::int16_t width, std::int16_t height, std::int16_t x,
                std::int16_t y) {
    return boxX <= x && x <= boxX + width && boxY <= y && y <= boxY + height;
}

BodyRectangle bodyRectangle(std::int16_t angle) {
    const bool isFullTurn = angle >= 1 && angle <= 360;
    const int quadrant = isFullTurn ? (angle - 1) / 90 : 0;
    const int remainder = angle - quadrant * 90;
    const int step = remainder >= 1 && remainder <= 75 ? (remainder - 1) / 15 : kStepsInQuadrant - 1;
    const int row = quadrant * kStepsInQuadrant + step;
    return kBodyRectangles[static_cast<std::size_t>(row)];
}

int hitBodyHand(const FrameRecords& records, Side side, std::int16_t index, std::int16_t x, std::int16_t y) {
    const PlayerRec* player = playerAt(records, side, index);
    if (player == nullptr) {
        return 0;
    }
    const int dx = x - roundToInt16(player->x);
    const int dy = y - roundToInt16(player->y);
    if (dx < 0 || dx > kPictureSide || dy < 0 || dy > kPictureSide) {
        return 0;
    }
    const BodyRectangle body = bodyRectangle(player->angle);
    const bool isOnBody = dx >= body.left && dx <= body.right && dy >= body.top && dy <= body.bottom;
    return isOnBody ? 1 : 2;
}

std::int16_t handAngle(const FrameRecords& records, Side side, std::int16_t index, std::int16_t x,
                       std::int16_t y) {
    const PlayerRec* player = playerAt(records, side, index);
    if (player == nullptr) {
        return 90;
    }
    const int dx = x - (roundToInt16(player->x) + kPictureSide / 2);
    const int dy = y - (roundToInt16(player->y) + kPictureSide / 2);
    const int quarter = quarterOf(dx, dy);
    if (dx == 0) {
        return quarter == 3 ? 270 : 90;
    }
    const double slope = std::abs(static_cast<double>(dy) / static_cast<double>(dx));
    const int t = roundToInt16(std::atan(slope) * 180.0 / 3.14);
    const std::array<int, 4> angles{t, 180 - t, 180 + t, 360 - t};
    return static_cast<std::int16_t>(angles[static_cast<std::size_t>(quarter - 1)]);
}

} // namespace zeltrona::editor
