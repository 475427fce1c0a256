#pragma once

#include "tools/zpf/command.h"

namespace zeltrona::zpf {

/// `render PLAY... -o FOLDER`: one picture a frame, FOLDER/<play>-<n>.png, over what is there. A play that
/// fails is told and the others go on.
ExitCode runRender(const QStringList& words, Streams streams);

} // namespace zeltrona::zpf
