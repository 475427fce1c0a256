#pragma once

#include "animation/playback_set.h"
#include "animation/run_time_error.h"

namespace zeltrona::animation {

/// One tick of all motion: balls, offence, defence. The caller has counted `animTick` up already.
/// Units:  an object without a path has gone animStepSize x animTick board units from its start, cut off at
/// its end;
///         one with a path shows point `animTick` of it, and its end position once the points have run out.
/// Effect: writes the Cur arrays and turns a group's Done flag on when all its objects stand exactly at their
/// ends;
///         never turns one off. Allocates nothing.
/// Errors: subscript out of range when a side has fewer players in the end frame than in the start frame;
/// what came
///         before the missing player has moved.
/// Reason: positions are 32-bit floats, but every sum and product is formed in double and rounded once on
/// store:
///         the end of a step is an exact equality, which a sum formed in float can miss for ever.
RunTimeError stepPlayers(PlaybackSet& set);

/// The balls' share of a tick. Without a ball in the start frame they count as arrived.
RunTimeError stepBalls(PlaybackSet& set);

} // namespace zeltrona::animation
