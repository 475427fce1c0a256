#pragma once

#include "document/records.h"
#include "tools/zpf/check/check_desk.h"
#include "tools/zpf/check/frame_facts.h"
#include "tools/zpf/check/key_shape.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zeltrona::zpf {

/// Checks the place off3 or def3 of a player: its label, its numbers, its length, and whether it moves up
/// over an empty slot.
void checkSlot(const CheckDesk& desk, std::string_view key, const FrameKey& shape, const SideFacts& side,
               std::int16_t frame);

/// Compares the side with the frame before; `frameBefore` is 0 for the first frame.
void checkTeamSize(const CheckDesk& desk, const SideFacts& side, std::size_t before,
                   std::int16_t frameBefore);

/// A lone player labelled 0 below the board is the empty state of a side.
void checkEmptySide(const CheckDesk& desk, const SideFacts& side,
                    const std::vector<document::PlayerRec>& players);

} // namespace zeltrona::zpf
