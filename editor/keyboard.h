#pragma once

#include "editor/editor_context.h"

namespace zeltrona::editor {

/// Esc throws away the line in progress. No other key edits, and Esc does nothing else. `KeyCode` 27 is Esc.
void Form_KeyDown(EditorContext& editor, int KeyCode, int Shift);
void pic_KeyDown(EditorContext& editor, int KeyCode, int Shift);

} // namespace zeltrona::editor
