#pragma once

#include "session/main_layout.h"

class QMainWindow;
class QWidget;

namespace zeltrona::animation {
class TransportBar;
}

namespace zeltrona::session {

class BoardView;
class BodyPanel;
class SequencePanel;
class StatusLine;
class ToolBox;

/// The parts of the main window below its menu. All belong to the window.
struct MainControls {
    QWidget* room = nullptr; ///< all of the window but the menu
    QWidget* desk = nullptr; ///< board and panels; keeps its size, and the middle of a larger window
    BoardView* pic = nullptr;
    SequencePanel* Frame1 = nullptr;
    animation::TransportBar* pToolAnim = nullptr;
    StatusLine* pStatus = nullptr;
    ToolBox* pToolbox = nullptr;
    BodyPanel* pBodyTool = nullptr;
};

/// Makes the controls and their tab order: board, tools, sequence, transport.
MainControls buildMainControls(QMainWindow& window);

/// Gives window and controls the places of a court's layout. Where the user's font needs more room than they
/// have, the transport goes down and the window grows, so that nothing is cut off.
void placeMainControls(QMainWindow& window, const MainControls& controls, const CourtLayout& layout);

/// Puts the desk into the middle of the room that the window has now; the tool box goes with it.
void centerDesk(const MainControls& controls);

} // namespace zeltrona::session
