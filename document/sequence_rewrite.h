#pragma once

#include "document/play_file.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace zeltrona::document {

/// The bytes of a play from which frame `deleted` has been taken, with the numbers behind the gap
/// one lower.
/// Shape:  one sweep over the lines, by their exact text: "[Frame4]", "frame=4" and "Notes4=" in
///         this very spelling, and only while they come in rising order without a gap from the one
///         behind the deleted frame. A note key that breaks the order keeps its number and so lands
///         on another frame. Frames are renamed from the first such header on; notes wherever they
///         stand.
/// Lines:  end at CR LF, LF or CR as in all reads of the play; each keeps its own end, renamed or
///         not, so a file of another program's line ends stays one. A last line without an end gets
///         CR LF.
/// Range:  numbers below 1 are in no sequence: nothing changes.
std::string closeFrameGap(std::string bytes, std::int16_t deleted);

/// Name of the file through which a play goes while its frames are renumbered.
inline constexpr const char* kTemporaryName = "zqTmp.zpf";

/// Replaces the play by `bytes` once they stand whole in the temporary file, in `programFolder` or, where
/// that cannot be written, beside the play; a play of that very name is replaced straight away. The
/// temporary file is gone afterwards, whatever happened.
WriteResult replaceThroughTemporary(PlayFile& play, std::string bytes, const std::string& programFolder);

} // namespace zeltrona::document
