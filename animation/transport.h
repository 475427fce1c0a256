#pragma once

#include "animation/anim_timer.h"
#include "animation/playback_set.h"
#include "animation/transport_host.h"
#include "document/frame_records.h"
#include "document/play_file.h"
#include "document/session.h"

namespace zeltrona::animation {

/// All that the transport works on, lent by the main window for its lifetime.
struct Transport {
    PlaybackSet& set;
    document::Session& session;    ///< animLoop, fullScreenOpen; Stop sets currFrame
    document::FrameRecords& frame; ///< only its triangles change: those of the step stay on the board
    const document::PlayFile& play;
    AnimTimer& timer;
    TransportHost& host;
};

// The buttons of pToolAnim. Play starts from frame 1; First, Prev, Next and Last jump and keep playing; Next
// at the end of the play leaves the timer off. Pause stops a running timer and starts a stopped one, nothing
// else. Stop puts the board back on frame 1.
void cmdAnimFirst_Click(Transport& transport);
void cmdAnimPrev_Click(Transport& transport);
void cmdAnimPlay_Click(Transport& transport);
void cmdAnimPause_Click(Transport& transport);
void cmdAnimStop_Click(Transport& transport);
void cmdAnimNext_Click(Transport& transport);
void cmdAnimLast_Click(Transport& transport);

/// One digit faster or slower; the ends stay at "9" and "1" without a visit of the change event.
void cmdAnimUp_Click(Transport& transport);
void cmdAnimDown_Click(Transport& transport);

/// Turns session.animLoop over.
void animCheckLoop_Click(Transport& transport);

/// Runs at every change of the text: what is no speed becomes "3", then the interval follows.
void txtAnimSpeed_Change(Transport& transport);

/// Timer interval from the text of txtAnimSpeed.
void applyAnimSpeed(Transport& transport);

/// One tick: counter, motion, picture, and at the end of a step the next one. Reads the play only at a change
/// of frame, and allocates nothing otherwise. Errors: a frame with a smaller team than the one before it ends
/// the playback with an error box; the timer is off,
///         the board shows the records of currFrame with the stored triangles of that frame, edits stay.
void Timer1_Timer(Transport& transport);

} // namespace zeltrona::animation
