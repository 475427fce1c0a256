#pragma once

#include "animation/draw_animation.h"
#include "assets/resources.h"
#include "tests/animation/playback_builders.h"

#include <QColor>

namespace zeltrona::animation::test {

inline const render::BoardArt& boardArt() {
    static const render::BoardArt art = [] {
        assets::initResources();
        return render::loadBoardArt();
    }();
    return art;
}

/// A parquet half court with the records of a shown frame and a working set.
struct MovingBoard {
    MovingBoard() {
        session.court = 1;
        session.courtTexture = 1;
        session.bodyType = 1;
        session.colorOff = 0x2020C0;
        session.colorDef = 0xC06020;
        session.colorOffFont = 0xFFFFFF;
        session.colorDefFont = 0xFFFFFF;
        session.lineWidth = 1;
    }

    document::Session session;
    document::FrameRecords frame;
    PlaybackSet set;
    render::BoardSurface surface{363, 332};
    render::Board board{surface, boardArt()};

    /// The picture of a tick.
    QImage tick() {
        drawAnimationStep(board, {set, session, frame});
        return surface.image().copy();
    }
    /// The picture of the editor's redraw.
    QImage redraw() {
        render::redrawBoard(board, {session, frame}, 0, 0);
        return surface.image().copy();
    }
};

inline PlayerRec body(float x, float y, std::string txt, std::int16_t angle = 90,
                      std::int32_t skin = 0x70A0E0) {
    PlayerRec player = playerAt(x, y, std::move(txt));
    player.angle = angle;
    player.skin = skin;
    return player;
}

} // namespace zeltrona::animation::test
