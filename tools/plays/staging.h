#pragma once

#include "document/frame_records.h"
#include "tools/plays/play_script.h"

#include <vector>

namespace zeltrona::plays {

/// Plays the script and gives the records of each frame.
/// Shape:  everybody has whole coordinates; who moves in a frame stands in the next where he moved. Curved
/// moves leave
///         a recorded path, in every frame but the last; its last point is the place in the next frame.
/// Reason: straight moves need no path, since the playback walks them by itself.
std::vector<document::FrameRecords> stage(const PlayScript& play);

} // namespace zeltrona::plays
