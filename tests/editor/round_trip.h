#pragma once

#include "document/frame_records.h"

#include <string>

namespace zeltrona::editor::testing {

/// Stores the records as frame 1 of a play of its own at `path` and loads them back; says what came back
/// otherwise than stored, empty when nothing did. The play format itself takes a little: places of players
/// are rounded and cut at eight characters, labels are those of the slots, other values are cut at 6998
/// characters, paths come back in the order of their owners, of balls only up to owner 100.
std::string roundTripFault(const document::FrameRecords& records, const std::string& path);

/// The labels "1" to "12" of both sides, which a player needs to be loaded at all.
std::string labelledConfig();

} // namespace zeltrona::editor::testing
