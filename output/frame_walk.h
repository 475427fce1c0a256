#pragma once

#include "document/frame_records.h"
#include "document/play_file.h"
#include "document/session.h"
#include "render/redraw.h"

#include <cstdint>
#include <functional>

namespace zeltrona::output {

/// What every output borrows from the main window to walk the play: it moves `session.currFrame` and the
/// records, and the caller puts the shown frame back afterwards.
struct FrameWalk {
    document::PlayFile& play;
    document::Session& session;
    document::FrameRecords& records;
    render::Board& board;
    std::int16_t editLineIndex = -1; ///< a line under construction is drawn as the editor would
    /// Told before each frame (from 1) of how many; paints at once and processes no event. May be empty.
    std::function<void(int frame, int frames)> progress = {};
};

/// Makes `frame` the shown one: currFrame, records, and the finished picture on the board.
void prepareFramePicture(FrameWalk& walk, std::int16_t frame);

/// Draws frames in rising order. Frames that nobody asks for are loaded on the way, since a frame without
/// players of a side shows those of the frame before.
class FrameWalker {
public:
    FrameWalker(FrameWalk& walk, std::int16_t frames) : m_walk(walk), m_frames(frames) {}
    /// The finished board of `frame`, which is not below the one asked for last.
    const QImage& upTo(std::int16_t frame);
    void startAnew() { m_reached = 0; }

private:
    FrameWalk& m_walk;
    std::int16_t m_frames;
    std::int16_t m_reached = 0;
};

} // namespace zeltrona::output
