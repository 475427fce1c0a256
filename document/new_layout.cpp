#include "document/new_layout.h"

#include <cstddef>

namespace zeltrona::document {

namespace {

/// Where a side stands: the place of its first player and the way to the next one.
struct Rank {
    float x = 0.0F;
    float y = 0.0F;
    float stepX = 0.0F;
    float stepY = 0.0F;
};

constexpr Rank kSmallOff{10, 2, 0, 27};
constexpr Rank kSmallDef{324, 2, 0, 27};
constexpr Rank kBigOff{10, 10, 31, 0};
constexpr Rank kBigDef{10, 254, 31, 0};
constexpr Rank kBigOffBodies{0, 5, 44, 0};
constexpr Rank kBigDefBodies{0, 230, 44, 0};

void placeRank(std::vector<PlayerRec>& players, const Rank& rank) {
    float x = rank.x;
    float y = rank.y;
    for (PlayerRec& player : players) {
        if (isEmptyPlayer(player)) {
            return;
        }
        player.x = x;
        player.y = y;
        x += rank.stepX;
        y += rank.stepY;
    }
}

/// Bodies on a half court. The column changes by the player's number and the row by the height reached: the
/// two do not change together.
void placeBodyColumns(std::vector<PlayerRec>& players, float firstX, float secondX) {
    constexpr std::size_t kFirstOfSecondColumn = 5;
    constexpr float kTop = 2.0F;
    constexpr float kStep = 50.0F;
    constexpr float kFoot = 300.0F;
    float y = kTop;
    for (std::size_t index = 0; index < players.size() && !isEmptyPlayer(players[index]); ++index) {
        players[index].x = index >= kFirstOfSecondColumn ? secondX : firstX;
        players[index].y = y;
        y = y + kStep >= kFoot ? kTop : y + kStep;
    }
}

} // namespace

void placeNewPlayers(const Session& session, FrameRecords& records) {
    const bool bodies = session.bodyType == 1;
    if (isBigCourt(session.court)) {
        placeRank(records.offPlayers, bodies ? kBigOffBodies : kBigOff);
        placeRank(records.defPlayers, bodies ? kBigDefBodies : kBigDef);
    } else if (bodies) {
        placeBodyColumns(records.offPlayers, 10, 65);
        placeBodyColumns(records.defPlayers, 300, 245);
    } else {
        placeRank(records.offPlayers, kSmallOff);
        placeRank(records.defPlayers, kSmallDef);
    }
}

} // namespace zeltrona::document
