#pragma once

#include "document/play_file.h"

#include <cstdint>
#include <string>

namespace zeltrona::zpf {

/// Why the play cannot be read, in the operating system's words; empty when it can.
std::string playFault(const std::string& path);

/// The last number of the unbroken run of frames from 1; 0 when there is none. `countFrames` gives the number
/// that is stored in that frame instead, which another program may have written wrong.
std::int16_t reachableFrames(const document::PlayFile& play);

/// The character set of the play's texts.
std::int16_t charsetOf(const document::PlayFile& play);

} // namespace zeltrona::zpf
