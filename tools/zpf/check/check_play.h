#pragma once

#include "document/play_file.h"
#include "tools/zpf/check/finding.h"

#include <cstdint>
#include <vector>

namespace zeltrona::zpf {

struct CheckResult {
    std::int16_t frames = 0;       ///< that can be reached
    std::vector<Finding> findings; ///< in the order of the file; those of the play as a whole come first
};

/// Everything in the play that would be lost, cut or ignored at load. The play's own readers say what is
/// read; what stands in the file beyond that is found. Changes nothing.
CheckResult checkPlay(const document::PlayFile& play);

} // namespace zeltrona::zpf
