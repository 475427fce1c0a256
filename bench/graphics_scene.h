#pragma once

#include "bench/heavy_board.h"
#include "render/board_art.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QImage>

namespace zeltrona::bench {

/// The heavy board as items of the toolkit's graphics view, each sprite a pixmap that was put together
/// beforehand: what the board would cost if it were built the common way.
class GraphicsBoard {
public:
    GraphicsBoard(const HeavyBoard& heavy, const render::BoardArt& art);
    /// Everything painted anew, as one picture.
    const QImage& redraw();

private:
    QGraphicsScene m_scene;
    QGraphicsView m_view;
    QImage m_image;
};

} // namespace zeltrona::bench
