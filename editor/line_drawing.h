#pragma once

#include "editor/editor_context.h"

namespace zeltrona::editor {

/// Adds a point to the last line of the frame, or begins a line with it when `newLine` is true or the frame
/// has none. The look of the whole line (curved, colour, style) is written anew at every point.
void addLinePoint(EditorContext& editor, float x, float y, bool newLine);

/// True while the curve box stands as it stood when the line was begun.
bool lineMatchesCurveBox(EditorContext& editor);

/// Ends the line in progress; a line of one point goes.
void finishLine(EditorContext& editor);

/// Throws away the line in progress with all its points.
void dropLine(EditorContext& editor);

} // namespace zeltrona::editor
