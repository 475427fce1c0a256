#include "editor/body_panel.h"

#include "document/number_text.h"
#include "editor/array_elements.h"

namespace zeltrona::editor {

namespace {

constexpr std::int16_t kLastPlayer = 11;

std::vector<document::PlayerRec>* playersOfTag(EditorContext& editor) {
    if (editor.state.bodyToolSide == "off") {
        return &editor.records.offPlayers;
    }
    if (editor.state.bodyToolSide == "def") {
        return &editor.records.defPlayers;
    }
    return nullptr;
}

void setPose(std::vector<document::PlayerRec>& players, std::int16_t player, std::int16_t pose) {
    if (player > kLastPlayer) {
        return;
    }
    if (auto* record = elementAt(players, player)) {
        record->body = pose;
    }
}

} // namespace

void openBodyPanel(EditorContext& editor, Side side, std::int16_t index, float x, float y) {
    editor.state.bodyToolSide = side == Side::Off ? "off" : "def";
    editor.state.bodyToolIndex = std::to_string(index);
    editor.host.openBodyPanel(x, y);
}

void pBodyTool_Click(EditorContext& editor, std::int16_t Index) {
    if (Index < 1 || Index > 4) {
        return;
    }
    if (auto* players = playersOfTag(editor)) {
        const double tagged = document::numericField(editor.state.bodyToolIndex).value_or(-1.0);
        setPose(*players, document::roundToInt16(tagged), static_cast<std::int16_t>(Index - 1));
        editor.host.redrawBoard(0.0F, 0.0F);
    }
    editor.state.bodyToolSide.clear();
    editor.state.bodyToolIndex.clear();
    editor.host.closeBodyPanel();
}

} // namespace zeltrona::editor
