#pragma once

#include "document/frame_records.h"
#include "document/play_file.h"

#include <cstdint>
#include <vector>

namespace zeltrona::document {

/// Readers of the numbered list keys of a frame: Ball0, Ball1 and so on. Each resets its array, then
/// reads from index 0 to the first index without a value, at the most to 32767.
/// Shape:  one element to an index. It starts all zero; one without a single valid field is the
///         empty element.
/// Text:   values are cut at 6998 bytes before they are split; fields beyond the last of a key are
///         ignored.
///
/// readTriangles stands in frame_store.h, as the animation needs it too.
void readBalls(const PlayFile& play, std::int16_t frame, std::vector<BallRec>& balls);
/// A line with fewer than four fields has no points.
void readLines(const PlayFile& play, std::int16_t frame, std::vector<LineRec>& lines);
void readShadows(const PlayFile& play, std::int16_t frame, std::vector<ShadowRec>& shadows);
/// No field is tested: a comma in a text shifts all later fields.
void readTxtPics(const PlayFile& play, std::int16_t frame, std::vector<TxtPicRec>& txtPics);

} // namespace zeltrona::document
