#pragma once

#include "document/frame_records.h"
#include "document/play_file.h"
#include "document/session.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zeltrona::document {

/// The stored number of the last frame in the unbroken run from 1; 0 when there is none. A gap ends the
/// count, and so does a stored -1. Numbers beyond 16 bits wrap.
std::int16_t countFrames(const PlayFile& play);
/// Whether the frame's section holds the key `frame` with another number than -1, whatever else it holds.
bool frameExists(const PlayFile& play, std::int16_t n);

/// Fills the Config variables of the session, and the players of both sides from Frame1. What the
/// file lacks gets its default; a side without a player stays as it was. Numbers beyond 16 or 32
/// bits wrap. The font is not read.
void loadConfig(const PlayFile& play, Session& session, FrameRecords& frame);

/// What a procedure that traps errors tells the user of one, in a box of its own.
struct TrappedError {
    int number = 0;
    std::string description;
    friend bool operator==(const TrappedError&, const TrappedError&) = default;
};

/// Name and character set of the key `font`. A part that no comma ends keeps the caller's default.
/// Errors: a character set that is no number is told and leaves both defaults; one beyond 16 bits wraps.
std::optional<TrappedError> readFontConfig(const PlayFile& play, std::string& fontName,
                                           std::int16_t& charset);
/// Writes the key `font` as "name,charset,".
WriteResult writeFontConfig(PlayFile& play, std::string_view fontName, std::int16_t charset);

/// Stores the shown frame under session.currFrame in one replacement; `frame` is ignored, as callers
/// know. `partial` leaves out lines, shadows and texts.
/// Shape:  only writes: keys of objects that are gone stay, and come back at the next load. The
///         bytes are those of single writes in the order note, frame, players, balls, paths,
///         triangles, lines, shadows, texts.
/// Units:  places of players are rounded to whole numbers, half to even; all else keeps its
///         fractions.
WriteResult saveFrame(PlayFile& play, const Session& session, const FrameRecords& records, std::int16_t frame,
                      bool partial);

/// Replaces all arrays by those of the frame; players of a side stay when the frame has none, so that the
/// board goes on showing them. Redraws nothing and leaves currFrame.
void loadFrame(const PlayFile& play, Session& session, FrameRecords& records, std::int16_t frame);

/// The narrow readers of the animation. `side` is "off" or "def". `dest` of players and balls is left as it
/// was when nothing is found; `dest` of paths is reset first.
void readFramePlayers(const PlayFile& play, std::int16_t frame, std::string_view side,
                      std::vector<PlayerRec>& dest);
/// Owners 0 to 11. A number left over at the end of a path is the x of a point with y 0.
void readFramePaths(const PlayFile& play, std::int16_t frame, std::string_view side,
                    std::vector<PathRec>& dest);
/// A ball's index stands as text in `txt`.
void readFrameBalls(const PlayFile& play, std::int16_t frame, std::vector<PlayerRec>& dest);
/// Owners 0 to 100. Any `kind` but "Ball" returns at once.
void readFrameBallPaths(const PlayFile& play, std::int16_t frame, std::string_view kind,
                        std::vector<PathRec>& dest);
/// Resets, then reads.
void readTriangles(const PlayFile& play, std::int16_t frame, std::vector<TriangleRec>& triangles);

} // namespace zeltrona::document
