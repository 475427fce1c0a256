#pragma once

#include "document/frame_records.h"
#include "document/session.h"

namespace zeltrona::document {

/// Puts the players of a new play in rows and columns at the edge of its court, and stores the
/// places in the records.
/// Units:  board units, left and top of a player's picture; which row or column depends on court and
///         body type.
/// Shape:  a side ends at its first empty player. With bodies on a half court a column holds six
///         players and the second column begins with the sixth, so that it stands alone at the foot
///         of the second one and the seventh goes on at its head.
/// Courts: one outside 1 to 9 has a board of the small size and is laid out like a half court.
void placeNewPlayers(const Session& session, FrameRecords& records);

} // namespace zeltrona::document
