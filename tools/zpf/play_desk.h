#pragma once

#include "document/frame_records.h"
#include "document/play_file.h"
#include "document/session.h"
#include "output/frame_walk.h"
#include "render/redraw.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zeltrona::zpf {

/// A play laid out as the main window would: its set-up loaded, a board of its court's size, at no frame yet.
class PlayDesk {
public:
    PlayDesk(const std::string& path, const render::BoardArt& art);

    /// Frames that can be reached.
    std::int16_t frames() const { return m_frames; }
    /// What every output borrows of the main window.
    output::FrameWalk& walk() { return m_walk; }
    /// Drawings that failed so far, in words.
    const std::vector<std::string>& errors() const { return m_errors; }

private:
    document::PlayFile m_play;
    document::Session m_session;
    document::FrameRecords m_records;
    render::BoardSurface m_pic;
    render::Board m_board;
    output::FrameWalk m_walk;
    std::vector<std::string> m_errors;
    std::int16_t m_frames = 0;
};

} // namespace zeltrona::zpf
