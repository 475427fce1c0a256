#pragma once

#include "animation/playback_set.h"

#include <initializer_list>
#include <vector>

namespace zeltrona::animation::test {

inline PlayerRec playerAt(float x, float y, std::string txt = "4") {
    PlayerRec player;
    player.x = x;
    player.y = y;
    player.txt = std::move(txt);
    return player;
}

inline PathRec pathOf(std::uint8_t owner, std::vector<document::PointF> points) {
    return PathRec{owner, std::move(points)};
}

/// A path of `count` points along y = 7 from x = 5, one unit apart.
inline PathRec longPath(std::uint8_t owner, int count) {
    PathRec path{owner, {}};
    for (int i = 0; i < count; ++i) {
        path.pts.push_back({5.0F + static_cast<float>(i), 7.0F});
    }
    return path;
}

/// A step as the preparation would leave it, from arrays written down by a test.
struct StepBuilder {
    PlaybackSet set;

    StepBuilder() {
        set.animStepSize = 3;
        set.animFrame = 1;
        set.animLastFrame = 2;
    }
    StepBuilder& offence(std::vector<PlayerRec> start, std::vector<PlayerRec> end) {
        set.offAnimCur = set.offAnimStart = std::move(start);
        set.offAnimEnd = std::move(end);
        return *this;
    }
    StepBuilder& defence(std::vector<PlayerRec> start, std::vector<PlayerRec> end) {
        set.defAnimCur = set.defAnimStart = std::move(start);
        set.defAnimEnd = std::move(end);
        return *this;
    }
    StepBuilder& balls(std::vector<PlayerRec> start, std::vector<PlayerRec> end) {
        set.ballAnimCur = set.ballAnimStart = std::move(start);
        set.ballAnimEnd = std::move(end);
        return *this;
    }
};

} // namespace zeltrona::animation::test
