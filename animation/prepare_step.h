#pragma once

#include "animation/anim_timer.h"
#include "animation/playback_set.h"
#include "document/play_file.h"

#include <vector>

namespace zeltrona::animation {

/// Loads the step from frame set.animFrame to the one after it from the play.
/// At or past the last frame it only turns the timer off.
/// Effect: fills the Start, End, Cur and Paths arrays, animTick 0, animStepSize 3; `triangles`, the board's
/// own array,
///         becomes that of the start frame. A step without a ball sets animBallDone; no Done flag is ever
///         cleared.
/// Reason: balls exist in both frames or leave the step, so the longer of their two arrays is cut to the
/// shorter.
void prepareAnimationStep(PlaybackSet& set, const document::PlayFile& play,
                          std::vector<document::TriangleRec>& triangles, AnimTimer& timer);

/// Loads the closing step of the last frame, which plays its paths: both ends of the step are frame
/// set.animFrame. Leaves the triangles as they are and tests no frame count.
void prepareLastFrameStep(PlaybackSet& set, const document::PlayFile& play);

/// Resets the three path arrays and reads those of frame set.animFrame; whether any of the groups has paths.
bool readClosingPaths(PlaybackSet& set, const document::PlayFile& play);

} // namespace zeltrona::animation
