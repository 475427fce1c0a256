#include "editor/array_elements.h"
#include "editor/pointer.h"

namespace zeltrona::editor {

namespace {

constexpr int kShiftKey = 1;

template<typename Record>
void putBack(std::vector<Record>& array, std::int16_t index, std::int16_t x, std::int16_t y) {
    if (auto* record = elementAt(array, index)) {
        record->x = static_cast<float>(x);
        record->y = static_cast<float>(y);
    }
}

/// A drag that recorded a path has moved nothing: what moved goes back to where it was picked, rounded.
void letPlayersGo(EditorContext& editor) {
    EditorState& state = editor.state;
    if (editor.host.curveChecked()) {
        putBack(editor.records.offPlayers, state.pickedOff, state.originX, state.originY);
        putBack(editor.records.defPlayers, state.pickedDef, state.originX, state.originY);
    }
    state.originX = state.originY = 0;
    state.grabDX = state.grabDY = 0;
    state.pickedOff = state.pickedDef = -1;
}

void letBallGo(EditorContext& editor) {
    EditorState& state = editor.state;
    if (editor.host.curveChecked()) {
        putBack(editor.records.balls, state.pickedBall, state.ballOriginX, state.ballOriginY);
    }
    state.ballOriginX = state.ballOriginY = 0;
    state.ballGrabDX = state.ballGrabDY = 0;
    state.pickedBall = -1;
    state.groupOff = state.groupDef = -1;
}

} // namespace

void pic_MouseUp(EditorContext& editor, int /*Button*/, int Shift, float /*X*/, float /*Y*/) {
    editor.host.setTimerEnabled(false);
    editor.state.rotatePick = -1;
    if (editor.state.lineInProgress) {
        return;
    }
    if (Shift != kShiftKey) {
        letPlayersGo(editor);
        letBallGo(editor);
    }
    editor.host.redrawBoard(0.0F, 0.0F);
}

} // namespace zeltrona::editor
