#pragma once

#include "editor/editor_context.h"

namespace zeltrona::editor {

/// Shows what the user can do next, after the pointer's place when `withCoordinates` is true. A tool outside
/// 0 to 10 gets the hint of what is picked.
void showStatusHint(EditorContext& editor, std::int16_t tool, bool withCoordinates, float x, float y);

} // namespace zeltrona::editor
