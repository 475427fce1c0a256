#pragma once

#include "editor/editor_context.h"

namespace zeltrona::editor {

/// Left edge, in the strip of button images, of the picture of button `number` (from 1) that is up (`state`
/// 0) or down
/// (`state` 1). The strip holds 20 by 20 images, up and down of each button side by side.
int toolImageOffset(int number, int state);

/// A click on a toolbox button. It puts the button down and every other up, or puts it up again when it was
/// down; an object that a tool has already added stays. The code itself leaves a tool by this click too.
void Picture1_Click(EditorContext& editor, std::int16_t Index);

/// Both park a new object at (10, 10), where it waits for the pointer.
void beginBall(EditorContext& editor);
void beginTriangle(EditorContext& editor);

/// Both are false when the user gave up. The shadow is added before its colour is asked for, so that giving
/// up leaves it in the frame with all fields 0.
bool beginShadow(EditorContext& editor);
bool beginTextPicture(EditorContext& editor);

/// Shows or hides the recorded curve points.
void cmdCurveShowHide_Click(EditorContext& editor);

} // namespace zeltrona::editor
