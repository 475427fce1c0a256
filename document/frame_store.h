#pragma once

#include "document/frame_records.h"
#include "document/play_file.h"
#include "document/session.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zeltrona::document {

/// The stored number of the last frame in the unbroken run from 1; 0 when there is none. A gap ends the count.
std::int16_t countFrames(const PlayFile& play);
bool frameExists(const PlayFile& play, std::int16_t n);

/// Fills the Config variables of the session, and the players of both sides from Frame1.
void loadConfig(const PlayFile& play, Session& session, FrameRecords& frame);

/// Name and character set of the key `font`; what the key does not give keeps the caller's default.
void readFontConfig(const PlayFile& play, std::string& fontName, std::int16_t& charset);
/// Writes the key `font` as "name,charset,".
WriteResult writeFontConfig(PlayFile& play, std::string_view fontName, std::int16_t charset);

/// Stores the shown frame under session.currFrame in one replacement; `frame` is ignored, as callers know.
/// `partial` leaves out lines, shadows and texts. Only writes: keys of objects that are gone stay.
WriteResult saveFrame(PlayFile& play, const Session& session, const FrameRecords& records, std::int16_t frame,
                      bool partial);

/// Replaces all arrays by those of the frame; players of a side stay when the frame has none. Redraws nothing and
/// leaves currFrame.
void loadFrame(const PlayFile& play, Session& session, FrameRecords& records, std::int16_t frame);

/// The narrow readers of the animation. `side` is "off" or "def". `dest` of players and balls is left as it was
/// when nothing is found; `dest` of paths is reset first.
void readFramePlayers(const PlayFile& play, std::int16_t frame, std::string_view side, std::vector<PlayerRec>& dest);
void readFramePaths(const PlayFile& play, std::int16_t frame, std::string_view side, std::vector<PathRec>& dest);
/// A ball's index stands as text in `txt`.
void readFrameBalls(const PlayFile& play, std::int16_t frame, std::vector<PlayerRec>& dest);
/// Any `kind` but "Ball" returns at once.
void readFrameBallPaths(const PlayFile& play, std::int16_t frame, std::string_view kind,
                        std::vector<PathRec>& dest);
/// Resets, then reads.
void readTriangles(const PlayFile& play, std::int16_t frame, std::vector<TriangleRec>& triangles);

} // namespace zeltrona::document
