#pragma once

#include "tools/zpf/command.h"

#include <array>

namespace zeltrona::zpf {

/// What each play is about.
Command infoCommand();
/// Everything in the plays that would be lost, cut or ignored at load. Ends with ExitCode::Found when there
/// is any.
Command checkCommand();
/// One picture a frame, FOLDER/<play>-<n>.png, over what is there.
Command renderCommand();
/// The web report of each play, FOLDER/<play>/index.html with its pictures beside it.
Command reportCommand();
/// The printed pages of each play, FOLDER/<play>.pdf.
Command printCommand();

/// In the order of the help.
std::array<Command, 5> allCommands();

} // namespace zeltrona::zpf
