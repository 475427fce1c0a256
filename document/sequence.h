#pragma once

#include "document/frame_records.h"
#include "document/play_file.h"
#include "document/session.h"

#include <cstdint>
#include <string>

namespace zeltrona::document {

/// Puts each object with a path on the path's last point: players of both sides, then balls. The guard compares the
/// path's place with the number of objects and not its owner; plays in use rely on it.
void carryPathEnds(FrameRecords& records);

/// What a step along the frames found.
enum class StepOutcome {
    Shown,       ///< records hold the frame currFrame
    AtEnd,       ///< nothing moved
    NoFirst,     ///< down: no frame below exists; currFrame is 1
    NoLast       ///< up: no frame above exists; the last frame is loaded
};
/// One frame down or up; loads the frame that it reaches. The caller draws, writes the position and tells the error.
StepOutcome stepDown(const PlayFile& play, Session& session, FrameRecords& records);
StepOutcome stepUp(const PlayFile& play, Session& session, FrameRecords& records, std::int16_t count);

/// Stores the shown frame, then makes a new one at the end from its state, as one replacement of the file.
WriteResult makeNewFrame(PlayFile& play, Session& session, FrameRecords& records);

/// Deletes frame session.currFrame (never the first) with its note, closes the gap in the numbering by the textual rewrite through
/// `zqTmp.zpf` in `programFolder` (beside the play where that is not writable), and loads the frame to show.
WriteResult deleteShownFrame(PlayFile& play, Session& session, FrameRecords& records,
                             const std::string& programFolder);

} // namespace zeltrona::document
