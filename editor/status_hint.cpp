#include "editor/status_hint.h"

#include "document/number_text.h"

namespace zeltrona::editor {

namespace {

// Offsets in the string table.
constexpr std::int16_t kStraightLineHint = 23;
constexpr std::int16_t kCurvedLineHint = 24;
constexpr std::int16_t kBallHint =
    25; // those of the tools behind the ball follow in the order of the buttons
constexpr std::int16_t kReadyHint = 31;
constexpr std::int16_t kCurvedMovementHint = 32;

std::string toolHint(EditorContext& editor, std::int16_t index) {
    if (index > tool::kLastLine) {
        return editor.host.localText(static_cast<std::int16_t>(kBallHint + index - tool::kBall));
    }
    return editor.host.localText(editor.host.curveChecked() ? kCurvedLineHint : kStraightLineHint);
}

// The three sentences on moving stand in no string table: they are the same in every language.
std::string pickHint(EditorContext& editor) {
    const EditorState& state = editor.state;
    if (editor.host.curveChecked()) {
        return editor.host.localText(kCurvedMovementHint);
    }
    if (state.pickedBall != -1) {
        return "Click and hold on the ball to move it. ";
    }
    if (state.pickedOff != -1 || state.pickedDef != -1) {
        return "Click and hold on the player's icon to move it. ";
    }
    if (editor.session.bodyType == 1 && state.rotatePick != -1) {
        return "Click and hold on the player's hand to rotate it. ";
    }
    return editor.host.localText(kReadyHint);
}

std::string coordinatePrefix(float x, float y) {
    return " (" + document::singleText(x) + "," + document::singleText(y) + ") -";
}

} // namespace

void showStatusHint(EditorContext& editor, std::int16_t tool, bool withCoordinates, float x, float y) {
    const std::string prefix = withCoordinates ? coordinatePrefix(x, y) : std::string();
    const bool isTool = tool >= 0 && tool < tool::kCount;
    editor.host.showStatus(prefix + (isTool ? toolHint(editor, tool) : pickHint(editor)));
}

} // namespace zeltrona::editor
