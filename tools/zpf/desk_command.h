#pragma once

#include "tools/zpf/command.h"
#include "tools/zpf/output_target.h"
#include "tools/zpf/play_desk.h"

#include <QString>

#include <functional>
#include <string>

namespace zeltrona::zpf {

/// For commands that draw: lays one play after the other on a desk of its own and runs `work` on it, which
/// gives the reason of a failure in plain words. A play without a frame, and a second one of the same name,
/// are refused. On a terminal a line tells how far long work is.
ExitCode forEachDesk(const CommandForm& form, const Arguments& arguments, Streams streams,
                     OutputTarget& target,
                     const std::function<std::string(PlayDesk& desk, const QString& play)>& work);

} // namespace zeltrona::zpf
