#pragma once

#include "document/frame_records.h"
#include "document/session.h"
#include "render/board_art.h"
#include "render/board_surface.h"

#include <functional>
#include <string>
#include <vector>

namespace zeltrona::render {

/// Everything that painting touches: the surface, the art, and whom to tell of a failed drawing.
struct Board {
    BoardSurface& pic;
    const BoardArt& art;
    /// Gets "Drawing error." or "Low level Drawing error."; the window shows it, other callers may leave it empty.
    std::function<void(const char* text)> onDrawingError = {};
};

/// What a redraw shows.
struct Scene {
    const document::Session& session;
    const document::FrameRecords& frame;
    std::int16_t editLineIndex = -1; ///< line under construction, -1 for none
};

/// Repaints the board from the records, in stacking order, and shows the finished picture once.
/// `pointerX`, `pointerY`: free end of the line under construction; 0, 0 when none is drawn.
void redrawBoard(Board& board, const Scene& scene, float pointerX, float pointerY);

/// Background and court lines. A court outside 1 to 9 has no lines.
void drawCourt(Board& board, const document::Session& session);

/// Size of `pic` for a court: 532 x 295 for a whole court, else 363 x 332.
QSize boardSizeOf(std::int16_t court);

/// A disc of 26 x 26 with a centred label and a ring; (x, y) is the left top corner.
void drawPlayers(Board& board, float x, float y, Color fillColor, const std::string& text, Color textColor,
                 std::int16_t charset);

/// What a body sprite is painted from; position, angle and pose may come from another record than the look.
struct BodyLook {
    float x = 0.0F;
    float y = 0.0F;
    std::int16_t angle = 0;
    std::int16_t body = 0;
    Color skin = 0;
    Color teamColor = 0;
    std::string text;
    Color textColor = 0;
    std::int16_t charset = 238;
};
void paintBody(Board& board, const BodyLook& look);

/// `kind`: "off" or "def"; the record at `index` of that side.
void drawPlayerBody(Board& board, const Scene& scene, std::string_view kind, std::size_t index);

void drawShadows(Board& board, const std::vector<document::ShadowRec>& shadows);
void drawTriangles(Board& board, const std::vector<document::TriangleRec>& triangles);
void drawTextPictures(Board& board, const std::vector<document::TxtPicRec>& txtPics, std::int16_t fontCharset);
void drawBalls(Board& board, const std::vector<document::BallRec>& balls);
/// One ball at (x, y) without any test of presence.
void drawBallAt(Board& board, float x, float y);
void drawPaths(Board& board, const Scene& scene, float pointerX, float pointerY);
void drawCurvePoints(Board& board, const Scene& scene);

} // namespace zeltrona::render
