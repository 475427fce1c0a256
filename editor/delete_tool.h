#pragma once

#include "editor/editor_context.h"

namespace zeltrona::editor {

/// Removes the first ball, triangle, shadow, text or line at the place, in this order, from the frame and
/// from the play, and stores the frame. Nothing at all happens where none lies; players can't be removed.
void deleteObjectAt(EditorContext& editor, float x, float y);

} // namespace zeltrona::editor
