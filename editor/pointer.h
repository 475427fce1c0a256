#pragma once

#include "editor/editor_context.h"

namespace zeltrona::editor {

// The events of `pic`. `Button`: 1 left, 2 right, 0 none; `Shift`: 1 the Shift key, 4 Alt, and no other value
// means anything; `X`, `Y`: board units.

/// Starts, extends or ends a line, drops a parked object, fixes a corner of a shadow, deletes, or picks
/// players and balls: what comes first wins.
void pic_MouseDown(EditorContext& editor, int Button, int Shift, float X, float Y);

/// Comes with and without a button. Turns a hand, moves the rubber band, a parked object or a shadow's
/// corner, or drags what is picked and records its path while the curve box is checked. Off the board nothing
/// happens.
void pic_MouseMove(EditorContext& editor, int Button, int Shift, float X, float Y);

/// Lets go of what is picked, unless Shift is held. A drag that recorded a path ends where it began.
void pic_MouseUp(EditorContext& editor, int Button, int Shift, float X, float Y);

} // namespace zeltrona::editor
