#include "editor/keyboard.h"

#include "editor/line_drawing.h"

namespace zeltrona::editor {

namespace {
constexpr int kEscape = 27;
}

void Form_KeyDown(EditorContext& editor, int KeyCode, int Shift) {
    if (KeyCode == kEscape && editor.state.lineInProgress) {
        pic_KeyDown(editor, KeyCode, Shift);
    }
}

void pic_KeyDown(EditorContext& editor, int KeyCode, int /*Shift*/) {
    if (KeyCode == kEscape && editor.state.lineInProgress) {
        dropLine(editor);
    }
}

} // namespace zeltrona::editor
