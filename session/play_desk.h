#pragma once

#include "animation/playback_set.h"
#include "document/frame_records.h"
#include "document/play_file.h"
#include "document/session.h"
#include "editor/editor_state.h"
#include "platform/common_dialog.h"
#include "render/board_art.h"
#include "render/board_surface.h"

namespace zeltrona::session {

/// What the main window holds of an open play, lent to whoever works on it.
struct PlayDesk {
    PlayDesk(document::Session& theSession, const render::BoardArt& theArt)
        : session(theSession), art(theArt), play(theSession.playFilePath) {}

    document::Session& session;
    const render::BoardArt& art;
    document::PlayFile play;
    document::FrameRecords records; ///< of the shown frame
    editor::EditorState editor;
    animation::PlaybackSet playback;
    render::BoardSurface surface; ///< picture of `pic`
    platform::CommonDialog CommonDialog1;
};

} // namespace zeltrona::session
