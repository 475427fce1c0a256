#pragma once

#include "document/frame_records.h"
#include "document/play_file.h"
#include "document/session.h"
#include "output/frame_walk.h"
#include "render/redraw.h"

#include <QString>

#include <cstdint>
#include <string>
#include <vector>

namespace zeltrona::zpf {

/// A play laid out as the main window would: its set-up loaded, a board of its court's size, at no frame yet.
class PlayDesk {
public:
    PlayDesk(const QString& path, const render::BoardArt& art);

    std::int16_t frames() const { return m_frames; }
    /// The finished board of a frame. Ask in rising order: a frame without players of a side shows those of
    /// the frame before.
    const QImage& drawFrame(std::int16_t frame);
    /// Drawings that failed so far, in words.
    const std::vector<std::string>& errors() const { return m_errors; }

private:
    document::PlayFile m_play;
    document::Session m_session;
    document::FrameRecords m_records;
    render::BoardSurface m_pic;
    render::Board m_board;
    std::vector<std::string> m_errors;
    std::int16_t m_frames = 0;
};

/// Why the play cannot be worked on, in words without its name; empty when it can.
QString playFault(const QString& path);

} // namespace zeltrona::zpf
