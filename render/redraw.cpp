#include "render/redraw.h"

namespace zeltrona::render {

namespace {

using document::PathRec;
using document::PlayerRec;

struct Side {
    std::string_view kind;
    const std::vector<PlayerRec>& players;
    Color color;
    Color fontColor;
};

/// Empty slots are painted too: they lie below the board. A body needs a label other than "0".
void drawSide(Board& board, const Scene& scene, const Side& side) {
    for (std::size_t i = 0; i < side.players.size(); ++i) {
        const PlayerRec& player = side.players[i];
        if (player.txt == "0" || scene.session.bodyType != 1) {
            drawPlayers(board, player.x, player.y, side.color, player.txt, side.fontColor,
                        scene.session.fontCharset);
        } else {
            drawPlayerBody(board, scene, side.kind, i);
        }
    }
}

bool isEmptySlot(const PathRec& path) {
    return path.pts.empty() || (path.owner == 0 && path.pts.front() == document::PointF{});
}

void drawPoints(BoardSurface& pic, const std::vector<PathRec>& paths, Color color) {
    for (const PathRec& path : paths) {
        if (isEmptySlot(path)) {
            return;
        }
        for (const document::PointF& point : path.pts) {
            pic.pset(point.x, point.y, color);
        }
    }
}

} // namespace

void drawCurvePoints(Board& board, const Scene& scene) {
    for (const auto* paths : {&scene.frame.offPaths, &scene.frame.defPaths, &scene.frame.ballPaths}) {
        drawPoints(board.pic, *paths, scene.session.colorLine);
    }
}

void redrawBoard(Board& board, const Scene& scene, float pointerX, float pointerY) {
    board.pic.cls();
    drawCourt(board, scene.session);
    drawShadows(board, scene.frame.shadows);
    drawTriangles(board, scene.frame.triangles);
    drawTextPictures(board, scene.frame.txtPics, scene.session.fontCharset);
    drawBalls(board, scene.frame.balls);
    const document::Session& session = scene.session;
    drawSide(board, scene, {"off", scene.frame.offPlayers, session.colorOff, session.colorOffFont});
    drawSide(board, scene, {"def", scene.frame.defPlayers, session.colorDef, session.colorDefFont});
    drawPaths(board, scene, pointerX, pointerY);
    if (scene.session.showCurves != 0) {
        drawCurvePoints(board, scene);
    }
    board.pic.refresh();
}

} // namespace zeltrona::render
