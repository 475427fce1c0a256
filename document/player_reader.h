#pragma once

#include "document/play_file.h"
#include "document/records.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace zeltrona::document {

/// Fills `player` from one slot ("off", 3) of a frame. False when the slot gives no player: a place that
/// makes no sense leaves `player` as it was, a missing label has it filled all the same.
bool readSlot(const PlayFile& play, std::int16_t frame, std::string_view side, std::size_t slot,
              PlayerRec& player);

/// Reads the players of a side ("off" or "def") of a frame, each put together in `scratch` first.
/// Shape:  dense: a slot whose position or label is missing or malformed leaves no gap. Slots are 0
///         to 11, and label and skin come from the slot, not from the place in the array.
/// Left:   `dest` stays as it was when no player is found.
/// Reason: the position is read with 8 bytes only, so that 1000,1000 comes back as 1000,100; plays
///         in use rely on it.
void readSidePlayers(const PlayFile& play, std::int16_t frame, std::string_view side, PlayerRec& scratch,
                     std::vector<PlayerRec>& dest);

} // namespace zeltrona::document
