#pragma once

#include "document/play_file.h"
#include "document/records.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace zeltrona::document {

/// Writers of the keys of a frame. Each writes nothing when its array has no data, and never deletes a key.
/// Errors: they run inside a WriteBatch, whose commit tells what became of them.

/// `key` is the slot, as "off0": writes it as whole numbers "x,y", then its angle and its body.
void writePlayerKeys(PlayFile& play, std::int16_t frame, std::string_view key, float x, float y,
                     std::int16_t angle, std::int16_t body);
/// All players of a side, "off" or "def".
void writeSidePlayers(PlayFile& play, std::int16_t frame, std::string_view side,
                      const std::vector<PlayerRec>& players);
void writeBallKeys(PlayFile& play, std::int16_t frame, const std::vector<BallRec>& balls);
/// `name` is "off", "def" or "Ball"; the key carries the owner, not the place in the array.
void writePathKeys(PlayFile& play, std::int16_t frame, std::string_view name,
                   const std::vector<PathRec>& paths);
void writeTriangleKeys(PlayFile& play, std::int16_t frame, const std::vector<TriangleRec>& triangles);
void writeLineKeys(PlayFile& play, std::int16_t frame, const std::vector<LineRec>& lines);
void writeShadowKeys(PlayFile& play, std::int16_t frame, const std::vector<ShadowRec>& shadows);
void writeTxtPicKeys(PlayFile& play, std::int16_t frame, const std::vector<TxtPicRec>& txtPics);

} // namespace zeltrona::document
