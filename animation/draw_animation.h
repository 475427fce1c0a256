#pragma once

#include "animation/playback_set.h"
#include "document/session.h"
#include "render/redraw.h"

#include <string_view>

namespace zeltrona::animation {

/// What a tick is painted from.
struct AnimationScene {
    const PlaybackSet& set;
    const document::Session& session;
    const document::FrameRecords& frame; ///< triangles of the step; skin and label of the bodies
};

/// Repaints the board for one tick: court, triangles, players, balls on top; shows one finished picture.
/// Shadows, texts, movement lines and curve points stay away until the next redraw of the editor. Reads no
/// file. Oddity: whether a side plays as bodies is asked of its first player for all: a first label "0" makes
/// all circles,
///         any other player labelled "0" is a body.
void drawAnimationStep(render::Board& board, const AnimationScene& scene);

/// The moving balls. None is asked whether it is there: the empty record lies out of sight below the court.
void drawAnimationBalls(render::Board& board, const AnimationScene& scene);

inline constexpr std::string_view kMovingOffence = "animOffdY";
inline constexpr std::string_view kMovingDefence = "animDefdY";

/// A moving body. Place, angle and pose are those of the working copy, skin and label those of the frame's
/// record with the same index, or of the working copy where the shown frame has no such player. `kind`:
/// kMovingOffence; anything else is the defence.
void drawPlayerBody(render::Board& board, const AnimationScene& scene, std::string_view kind,
                    std::size_t index);

} // namespace zeltrona::animation
