#pragma once

#include "document/play_file.h"
#include "tools/zpf/check/finding.h"
#include "tools/zpf/check/play_listing.h"

#include <cstdint>
#include <vector>

namespace zeltrona::zpf {

/// What no name reaches: keys ahead of the first header, repeated sections and keys, lines that are no key,
/// and sections that no reader asks for.
void checkStructure(const PlayListing& listing, std::vector<Finding>& findings);

/// Sections of frames that do not count or cannot be reached, when the unbroken run of frames ends at
/// `frames`.
void checkNumbering(const document::PlayFile& play, const PlayListing& listing, std::int16_t frames,
                    std::vector<Finding>& findings);

} // namespace zeltrona::zpf
