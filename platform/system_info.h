#pragma once

namespace zeltrona::platform {

/// Starts the desktop's own program about the machine. False where there is none, or it does not start.
bool startSystemInformation();

} // namespace zeltrona::platform
