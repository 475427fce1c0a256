#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zeltrona::document {

/// A colour as the play file keeps it: 0x00BBGGRR.
using Color = std::int32_t;

/// A place on the board, in board units (pixels of the board, origin top left, y down).
struct PointF {
    float x = 0.0F;
    float y = 0.0F;
    friend bool operator==(const PointF&, const PointF&) = default;
};

// A record made plainly is all zero: that is what an array grows by. The empty state of an array, one element
// with values that its has-data test knows again, comes from the reset procedures of frame_records.h.

/// One player. `x`, `y`: left and top of the picture on the board; `txt`: label, bytes in the play's code
/// page; `body`: pose 0 to 3; `angle`: facing in degrees, counter-clockwise.
struct PlayerRec {
    float x = 0.0F;
    float y = 0.0F;
    std::string txt;
    std::int16_t body = 0;
    std::int16_t angle = 0;
    std::int32_t skin = 0;
    friend bool operator==(const PlayerRec&, const PlayerRec&) = default;
};

/// The recorded path of one player or ball. `owner`: index in its array; `pts`: in the order of the walk.
struct PathRec {
    std::uint8_t owner = 0;
    std::vector<PointF> pts;
    friend bool operator==(const PathRec&, const PathRec&) = default;
};

/// One movement line. `style`: number of the tool that drew it; `pts`: may be empty when the file names a
/// line without points.
struct LineRec {
    std::uint8_t style = 0;
    Color color = 0;
    bool curved = false;
    std::vector<PointF> pts;
    friend bool operator==(const LineRec&, const LineRec&) = default;
};

/// `x`, `y`: left end of the base.
struct TriangleRec {
    float x = 0.0F;
    float y = 0.0F;
    Color color = 0;
    friend bool operator==(const TriangleRec&, const TriangleRec&) = default;
};

/// An ellipse. `w` and `h` hold its second corner on the board, not a size: the names are those of the file.
struct ShadowRec {
    float x = 0.0F;
    float y = 0.0F;
    std::int16_t w = 0;
    std::int16_t h = 0;
    Color color = 0;
    friend bool operator==(const ShadowRec&, const ShadowRec&) = default;
};

/// `x`, `y`: the ball's lowest point plus the drawing offsets of the board.
struct BallRec {
    float x = 0.0F;
    float y = 0.0F;
    friend bool operator==(const BallRec&, const BallRec&) = default;
};

/// A text on the board; `x`, `y`: lower left corner of its block; `text`, `fontName`: bytes in the play's
/// code page.
struct TxtPicRec {
    std::string text;
    float x = 0.0F;
    float y = 0.0F;
    std::string fontName;
    std::int16_t fontSize = 0;
    Color color = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    friend bool operator==(const TxtPicRec&, const TxtPicRec&) = default;
};

} // namespace zeltrona::document
