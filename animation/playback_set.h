#pragma once

#include "document/frame_records.h"

#include <cstdint>
#include <vector>

namespace zeltrona::animation {

using document::PathRec;
using document::PlayerRec;

/// The working set of one playback step, from frame `animFrame` to the frame after it.
/// Shape:  no array has zero elements; an absent side or ball is one empty record (document::emptyPlayer).
///         The Cur arrays are as long as their Start arrays. A path's `owner` is an index in its group's
///         arrays.
/// Moment: prepared (animTick 0, Cur equals Start), running (animTick grows), over (all three Done are true).
///         At first everything is empty and the counters are 0.
struct PlaybackSet {
    PlaybackSet();

    std::vector<PlayerRec> offAnimStart, offAnimEnd, offAnimCur;
    std::vector<PlayerRec> defAnimStart, defAnimEnd, defAnimCur;
    std::vector<PlayerRec> ballAnimStart, ballAnimEnd, ballAnimCur; ///< only x and y count
    std::vector<PathRec> offAnimPaths, defAnimPaths, ballAnimPaths;

    std::int16_t animFrame = 0;     ///< the frame the step starts from, counted from 1
    std::int16_t animLastFrame = 0; ///< number of frames of the play
    std::int32_t animTick = 0;      ///< ticks done in this step
    std::int16_t animStepSize = 0;  ///< board units a tick

    /// Preparing a step leaves these alone: a side that had arrived before a jump no longer holds back the
    /// step that the jump leads to.
    bool animOffDone = false;
    bool animDefDone = false;
    bool animBallDone = false;
};

} // namespace zeltrona::animation
