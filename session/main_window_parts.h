#pragma once

#include "animation/anim_timer.h"
#include "session/main_controls.h"
#include "session/play_desk.h"

namespace zeltrona::session {

class frmMain;

/// What the helpers of the main window work with; all of it belongs to the window.
struct MainWindowParts {
    frmMain& window;
    PlayDesk& desk;
    const MainControls& controls;
    animation::AnimTimer& timer;
};

} // namespace zeltrona::session
