#pragma once

#include "document/frame_records.h"
#include "document/play_file.h"
#include "document/session.h"

#include <cstddef>

namespace zeltrona::document {

/// What the Delete tool removes, in the order of its search.
enum class ObjectClass { Ball, Triangle, Shadow, TxtPic, Line };

/// Removes the element `index` of a class from the shown frame and from the file, as one replacement
/// that ends with the storing of the frame. Its key goes with the keys of all later elements, which
/// come back under their new numbers. An index that does not exist is passed over.
/// Paths:  with a ball goes the first path that names it as owner, and later paths move down by one
///         place and one owner. The keys deleted are those of the places, not of the owners, and
///         without such a path all others keep owners that no longer fit their balls; plays in use
///         rely on both.
/// Errors: when the file cannot be written, the records stand as they were too.
WriteResult removeObject(PlayFile& play, const Session& session, FrameRecords& records, ObjectClass kind,
                         std::size_t index);

} // namespace zeltrona::document
