#pragma once

#include "document/frame_records.h"
#include "document/play_file.h"
#include "document/session.h"

#include <cstdint>
#include <string>

namespace zeltrona::document {

/// Puts each object with a path on the path's last point: players of both sides, then balls. The guard
/// compares the path's place with the number of objects and not its owner; plays in use rely on it. An owner
/// without an object is passed over.
void carryPathEnds(FrameRecords& records);

/// What a step along the frames found.
enum class StepOutcome {
    Shown,   ///< records hold the frame currFrame
    AtEnd,   ///< nothing moved
    NoFirst, ///< down: no frame below exists; currFrame is 1 and the records stay
    NoLast   ///< up: no frame above exists; currFrame is the last and its keys, whatever is there, are loaded
};
/// One frame down or up; loads the frame that it reaches and drops what was not saved. Numbers without a
/// frame, which only a play changed from outside has, are passed over one by one. The caller draws, writes
/// the position and tells the error.
StepOutcome stepDown(const PlayFile& play, Session& session, FrameRecords& records);
/// `count` is that of countFrames.
StepOutcome stepUp(const PlayFile& play, Session& session, FrameRecords& records, std::int16_t count);

/// Stores the shown frame, then makes a new one at the end from its state, as one replacement of the
/// file: players and balls at the ends of their paths, the triangles; no lines, shadows, texts and
/// paths.
/// Errors: when the file cannot be written, session and records stand as they were too.
/// Range:  behind frame 32767 there is no number left: the shown frame is stored, and stays.
WriteResult makeNewFrame(PlayFile& play, Session& session, FrameRecords& records);

/// Whether the shown frame may be deleted. A play of one frame loses none, without a word; then
/// comes the first frame.
enum class Deletion { Allowed, OnlyFrame, FirstFrame };
Deletion checkDeletion(const PlayFile& play, const Session& session);

/// Deletes frame session.currFrame with its note, closes the gap in the numbering by the textual
/// rewrite through `zqTmp.zpf` in `programFolder` (beside the play where that is not writable), all
/// as one replacement, and loads the frame to show: the one that moved into the place, or the last
/// one. Does nothing where it is not allowed.
/// Errors: on a failure of any step play, session and records stand as they were.
WriteResult deleteShownFrame(PlayFile& play, Session& session, FrameRecords& records,
                             const std::string& programFolder);

} // namespace zeltrona::document
