#include "output/frame_walk.h"

#include "document/frame_store.h"

namespace zeltrona::output {

void prepareFramePicture(FrameWalk& walk, std::int16_t frame) {
    walk.session.currFrame = frame;
    document::loadFrame(walk.play, walk.session, walk.records, frame);
    render::redrawBoard(walk.board, {walk.session, walk.records, walk.editLineIndex}, 0, 0);
}

const QImage& FrameWalker::upTo(std::int16_t frame) {
    while (m_reached < frame - 1) {
        ++m_reached;
        document::loadFrame(m_walk.play, m_walk.session, m_walk.records, m_reached);
    }
    if (m_reached < frame) {
        m_reached = frame;
        if (m_walk.progress) {
            m_walk.progress(frame, m_frames);
        }
        prepareFramePicture(m_walk, frame);
    }
    return m_walk.board.pic.image();
}

} // namespace zeltrona::output
