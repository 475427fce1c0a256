#pragma once

#include "document/frame_records.h"
#include "tools/plays/moments.h"

namespace zeltrona::plays {

/// Adds the line of each move in the style of its verb, then the free lines.
/// Shape: lines start at the edge of the player; a pass ends at the edge of the receiver's next place, a shot
/// before the
///        ring, all others where the player will stand. A step shorter than an arrow has none.
void addMovementLines(document::FrameRecords& records, const PlayScript& play, const CourtMap& map,
                      const Frame& frame, const Moment& now, const Moment& next);

} // namespace zeltrona::plays
