#pragma once

#include "document/play_file.h"

class QWidget;

namespace zeltrona::dialogs {

/// Where a set-up window could not store its keys, its title says so and why until it can. True when it
/// could; the window stays otherwise, so that nothing that was filled in is lost.
bool showWriteFailure(QWidget& window, const document::WriteResult& result);

} // namespace zeltrona::dialogs
