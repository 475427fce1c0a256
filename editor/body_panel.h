#pragma once

#include "editor/editor_context.h"
#include "editor/hit_test.h"

namespace zeltrona::editor {

/// Opens the panel of the four poses at a place on the board, for one player.
void openBodyPanel(EditorContext& editor, Side side, std::int16_t index, float x, float y);

/// A click on item 1 to 4 gives the player of the panel the pose 0 to 3 and closes the panel; item 0, the
/// panel itself, does nothing.
void pBodyTool_Click(EditorContext& editor, std::int16_t Index);

} // namespace zeltrona::editor
