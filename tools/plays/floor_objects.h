#pragma once

#include "document/frame_records.h"
#include "tools/plays/court_map.h"
#include "tools/plays/play_script.h"

namespace zeltrona::plays {

/// Character set of every sample play: Central European.
inline constexpr std::int16_t kCharset = 238;
/// A ball's record lies this much below its middle.
inline constexpr float kBallFoot = 7;

/// Adds shades, texts and triangles.
void addFloorObjects(document::FrameRecords& records, const PlayScript& play, const CourtMap& map,
                     const Frame& frame);

} // namespace zeltrona::plays
