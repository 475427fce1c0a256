#pragma once

#include <QString>

namespace zeltrona::platform {

/// The folder that holds the program, its `Files` and `ZP.hlp`; no closing separator.
QString programFolder();

/// Where the file dialogs begin: `Files` of the program folder.
QString playsFolder();

} // namespace zeltrona::platform
