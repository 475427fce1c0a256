#include "animation/playback_set.h"

namespace zeltrona::animation {

PlaybackSet::PlaybackSet() {
    for (auto* players : {&offAnimStart, &offAnimEnd, &offAnimCur, &defAnimStart, &defAnimEnd, &defAnimCur,
                          &ballAnimStart, &ballAnimEnd, &ballAnimCur}) {
        document::resetPlayers(*players);
    }
    for (auto* paths : {&offAnimPaths, &defAnimPaths, &ballAnimPaths}) {
        document::resetPaths(*paths);
    }
}

} // namespace zeltrona::animation
