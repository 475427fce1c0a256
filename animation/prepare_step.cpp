#include "animation/prepare_step.h"

#include "document/frame_store.h"

#include <algorithm>

namespace zeltrona::animation {

namespace {

constexpr std::int16_t kStepSize = 3;

void loadSides(PlaybackSet& set, const document::PlayFile& play, std::int16_t startFrame,
               std::int16_t endFrame) {
    for (auto* players : {&set.offAnimStart, &set.offAnimEnd, &set.defAnimStart, &set.defAnimEnd}) {
        document::resetPlayers(*players);
    }
    document::resetPaths(set.offAnimPaths);
    document::resetPaths(set.defAnimPaths);
    document::readFramePlayers(play, startFrame, "off", set.offAnimStart);
    document::readFramePlayers(play, endFrame, "off", set.offAnimEnd);
    document::readFramePaths(play, startFrame, "off", set.offAnimPaths);
    document::readFramePlayers(play, startFrame, "def", set.defAnimStart);
    document::readFramePlayers(play, endFrame, "def", set.defAnimEnd);
    document::readFramePaths(play, startFrame, "def", set.defAnimPaths);
    set.offAnimCur = set.offAnimStart;
    set.defAnimCur = set.defAnimStart;
}

void loadBalls(PlaybackSet& set, const document::PlayFile& play, std::int16_t startFrame,
               std::int16_t endFrame) {
    document::resetPlayers(set.ballAnimStart);
    document::resetPlayers(set.ballAnimEnd);
    document::readFrameBalls(play, startFrame, set.ballAnimStart);
    document::readFrameBalls(play, endFrame, set.ballAnimEnd);
    const std::size_t startCount = set.ballAnimStart.size();
    const std::size_t common = std::min(startCount, set.ballAnimEnd.size());
    set.ballAnimStart.resize(common);
    set.ballAnimEnd.resize(common);
    set.ballAnimCur = set.ballAnimStart;
    document::resetPaths(set.ballAnimPaths);
    document::readFrameBallPaths(play, startFrame, "Ball", set.ballAnimPaths);
    if (!document::hasPlayers(set.ballAnimStart)) {
        set.animBallDone = true;
    }
    // The count before the cut, on purpose: a ball that leaves the step keeps its place among the paths.
    if (startCount < set.ballAnimPaths.size()) {
        set.ballAnimPaths.resize(startCount);
    }
}

void loadStep(PlaybackSet& set, const document::PlayFile& play, std::int16_t startFrame,
              std::int16_t endFrame) {
    loadSides(set, play, startFrame, endFrame);
    loadBalls(set, play, startFrame, endFrame);
    set.animTick = 0;
    set.animStepSize = kStepSize;
}

} // namespace

void prepareAnimationStep(PlaybackSet& set, const document::PlayFile& play,
                          std::vector<document::TriangleRec>& triangles, AnimTimer& timer) {
    if (set.animFrame >= set.animLastFrame) {
        timer.setEnabled(false);
        return;
    }
    document::readTriangles(play, set.animFrame, triangles);
    loadStep(set, play, set.animFrame, static_cast<std::int16_t>(set.animFrame + 1));
}

void prepareLastFrameStep(PlaybackSet& set, const document::PlayFile& play) {
    loadStep(set, play, set.animFrame, set.animFrame);
}

bool readClosingPaths(PlaybackSet& set, const document::PlayFile& play) {
    for (auto* paths : {&set.offAnimPaths, &set.defAnimPaths, &set.ballAnimPaths}) {
        document::resetPaths(*paths);
    }
    document::readFramePaths(play, set.animFrame, "off", set.offAnimPaths);
    document::readFramePaths(play, set.animFrame, "def", set.defAnimPaths);
    document::readFrameBallPaths(play, set.animFrame, "Ball", set.ballAnimPaths);
    return document::hasPaths(set.offAnimPaths) || document::hasPaths(set.defAnimPaths)
           || document::hasPaths(set.ballAnimPaths);
}

} // namespace zeltrona::animation
