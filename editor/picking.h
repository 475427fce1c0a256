#pragma once

#include "editor/editor_context.h"

namespace zeltrona::editor {

/// `Over`: a curved movement was begun in the first frame, which the user was told is not allowed.
enum class Picking { GoesOn, Over };

/// Picks what lies under the pointer: the first offence player, then the first defence player, which takes
/// its place, then the last ball, which is picked with either. A hand under the pointer is gripped where no
/// body is hit behind it.
Picking pickUnderPointer(EditorContext& editor, float x, float y);

/// A press with Shift: all that is picked is taken hold of anew at this place, to move together.
void holdPickedTogether(EditorContext& editor, float x, float y);

} // namespace zeltrona::editor
