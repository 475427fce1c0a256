#include "document/frame_records.h"

namespace zeltrona::document {

namespace {

/// Below the board, where nothing of an empty element is seen.
constexpr float kBelowBoard = 1000.0F;

bool atOrigin(float x, float y) {
    return x == 0.0F && y == 0.0F;
}

} // namespace

PlayerRec emptyPlayer() {
    PlayerRec player;
    player.y = kBelowBoard;
    player.txt = "0";
    return player;
}

PathRec emptyPath() {
    return {0, {{0.0F, 0.0F}}};
}

LineRec emptyLine() {
    LineRec line;
    line.pts = {{0.0F, kBelowBoard}};
    return line;
}

TxtPicRec emptyTxtPic() {
    TxtPicRec txtPic;
    txtPic.fontSize = 8;
    return txtPic;
}

FrameRecords::FrameRecords()
    : offPlayers{emptyPlayer()},
      defPlayers{emptyPlayer()},
      balls(1),
      offPaths{emptyPath()},
      defPaths{emptyPath()},
      ballPaths{emptyPath()},
      lines{emptyLine()},
      triangles(1),
      shadows(1),
      txtPics{emptyTxtPic()} {}

void resetPlayers(std::vector<PlayerRec>& players) {
    players.assign(1, emptyPlayer());
}

void resetPaths(std::vector<PathRec>& paths) {
    paths.assign(1, emptyPath());
}

void resetLines(std::vector<LineRec>& lines) {
    lines.assign(1, emptyLine());
}

void resetTriangles(std::vector<TriangleRec>& triangles) {
    triangles.assign(1, {});
}

void resetShadows(std::vector<ShadowRec>& shadows) {
    shadows.assign(1, {});
}

void resetBalls(std::vector<BallRec>& balls) {
    balls.assign(1, {});
}

void resetTxtPics(std::vector<TxtPicRec>& txtPics) {
    txtPics.assign(1, emptyTxtPic());
}

bool isEmptyPlayer(const PlayerRec& player) {
    return player.x == 0.0F && player.y == kBelowBoard && player.txt == "0";
}

bool hasPlayers(const std::vector<PlayerRec>& players) {
    return players.size() > 1 || (players.size() == 1 && !isEmptyPlayer(players[0]));
}

bool hasPaths(const std::vector<PathRec>& paths) {
    if (paths.empty()) {
        return false;
    }
    const PathRec& first = paths[0];
    return first.owner != 0 || first.pts.empty() || !atOrigin(first.pts[0].x, first.pts[0].y);
}

bool hasLines(const std::vector<LineRec>& lines) {
    if (lines.size() != 1) {
        return lines.size() > 1;
    }
    const LineRec& line = lines[0];
    const bool belowBoard = !line.pts.empty() && line.pts[0] == PointF{0.0F, kBelowBoard};
    return !belowBoard || line.curved || line.style != 0;
}

bool hasTriangles(const std::vector<TriangleRec>& triangles) {
    if (triangles.size() != 1) {
        return triangles.size() > 1;
    }
    return !atOrigin(triangles[0].x, triangles[0].y) || triangles[0].color != 0;
}

bool hasShadows(const std::vector<ShadowRec>& shadows) {
    if (shadows.size() != 1) {
        return shadows.size() > 1;
    }
    return !atOrigin(shadows[0].x, shadows[0].y) || shadows[0].w != 0 || shadows[0].h != 0;
}

bool hasBalls(const std::vector<BallRec>& balls) {
    return balls.size() > 1 || (balls.size() == 1 && !atOrigin(balls[0].x, balls[0].y));
}

bool hasTxtPics(const std::vector<TxtPicRec>& txtPics) {
    if (txtPics.size() != 1) {
        return txtPics.size() > 1;
    }
    const TxtPicRec& txtPic = txtPics[0];
    return !atOrigin(txtPic.x, txtPic.y) || !txtPic.fontName.empty() || txtPic.fontSize != 8 || txtPic.bold
           || txtPic.italic || txtPic.underline || txtPic.strikethrough;
}

} // namespace zeltrona::document
