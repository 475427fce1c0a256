#include "document/number_text.h"
#include "editor/body_panel.h"
#include "editor/delete_tool.h"
#include "editor/line_drawing.h"
#include "editor/picking.h"
#include "editor/pointer.h"
#include "editor/status_hint.h"
#include "editor/toolbox.h"

#include <algorithm>

namespace zeltrona::editor {

using document::roundToInt16;

namespace {

constexpr int kRightButton = 2;
constexpr int kShiftKey = 1;
constexpr int kAltKey = 4;

enum class Press { GoesOn, Over };

void readToolFromButtons(EditorContext& editor) {
    const auto& buttons = editor.state.toolDown;
    const auto down = std::find(buttons.begin(), buttons.end(), true);
    editor.state.currTool =
        down == buttons.end() ? tool::kNone : static_cast<std::int16_t>(down - buttons.begin());
}

void putButtonUp(EditorContext& editor, std::int16_t index) {
    editor.state.toolDown[static_cast<std::size_t>(index)] = true;
    Picture1_Click(editor, index);
}

Press endLine(EditorContext& editor, int button, int shift) {
    if (!editor.state.lineInProgress || (button != kRightButton && shift != kAltKey)) {
        return Press::GoesOn;
    }
    finishLine(editor);
    return Press::Over;
}

Press startLine(EditorContext& editor, float x, float y) {
    EditorState& state = editor.state;
    const bool isLineTool = state.currTool >= tool::kFirstLine && state.currTool <= tool::kLastLine;
    if (state.lineInProgress || !isLineTool) {
        return Press::GoesOn;
    }
    state.lineInProgress = true;
    state.lineTool = state.currTool;
    state.lineCurved = editor.host.curveChecked();
    addLinePoint(editor, x, y, true);
    return Press::Over;
}

Press extendLine(EditorContext& editor, float x, float y) {
    const EditorState& state = editor.state;
    if (!state.lineInProgress) {
        return Press::GoesOn;
    }
    if (lineMatchesCurveBox(editor) && state.currTool == state.lineTool && state.currTool != tool::kNone) {
        addLinePoint(editor, x, y, false);
        editor.host.redrawBoard(x, y);
    } else {
        finishLine(editor);
    }
    return Press::Over;
}

void dropBall(EditorContext& editor, float x, float y) {
    auto& balls = editor.records.balls;
    if (editor.state.currTool != tool::kBall || !hasBalls(balls)) {
        return;
    }
    putButtonUp(editor, tool::kBall);
    balls.back() = {x, y};
    editor.host.redrawBoard(x, y);
}

void dropTriangle(EditorContext& editor, float x, float y) {
    auto& triangles = editor.records.triangles;
    if (editor.state.currTool != tool::kTriangle || !hasTriangles(triangles)) {
        return;
    }
    putButtonUp(editor, tool::kTriangle);
    triangles.back() = {x, y, editor.session.colorLine};
    editor.host.redrawBoard(x, y);
}

void dropTextPicture(EditorContext& editor, float x, float y) {
    auto& txtPics = editor.records.txtPics;
    if (editor.state.currTool != tool::kText || !hasTxtPics(txtPics)) {
        return;
    }
    putButtonUp(editor, tool::kText);
    txtPics.back().x = x;
    txtPics.back().y = y;
    editor.host.redrawBoard(x, y);
}

Press fixShadowCorner(EditorContext& editor, float x, float y) {
    if (editor.state.currTool != tool::kShadow) {
        return Press::GoesOn;
    }
    auto& shadow = editor.records.shadows.back();
    if (!editor.state.shadowSizing) {
        editor.state.shadowSizing = true;
        shadow.x = x;
        shadow.y = y;
        return Press::GoesOn;
    }
    editor.state.shadowSizing = false;
    shadow.w = roundToInt16(x);
    shadow.h = roundToInt16(y);
    putButtonUp(editor, tool::kShadow);
    return Press::Over;
}

/// The user took another tool between the shadow's two clicks: that tool's button goes up as well.
void leaveShadow(EditorContext& editor) {
    if (editor.state.currTool == tool::kShadow || !editor.state.shadowSizing) {
        return;
    }
    editor.state.shadowSizing = false;
    putButtonUp(editor, tool::kShadow);
}

Press deleteObject(EditorContext& editor, float x, float y) {
    if (editor.state.currTool != tool::kDelete) {
        return Press::GoesOn;
    }
    deleteObjectAt(editor, x, y);
    return Press::Over;
}

void closePress(EditorContext& editor, int button, float x, float y) {
    const EditorState& state = editor.state;
    if (state.pickedOff == -1 && state.pickedDef == -1) {
        showStatusHint(editor, tool::kNone, true, x, y);
        if (button == kRightButton) {
            editor.host.openPopUpMenu();
        }
    } else if (button == kRightButton && editor.session.bodyType == 1) {
        const Side side = state.pickedOff != -1 ? Side::Off : Side::Def;
        openBodyPanel(editor, side, side == Side::Off ? state.pickedOff : state.pickedDef, x, y);
    }
}

} // namespace

void pic_MouseDown(EditorContext& editor, int Button, int Shift, float X, float Y) {
    editor.host.setTimerEnabled(false);
    readToolFromButtons(editor);
    if (endLine(editor, Button, Shift) == Press::Over) {
        return;
    }
    if (startLine(editor, X, Y) == Press::Over) {
        return;
    }
    if (extendLine(editor, X, Y) == Press::Over) {
        return;
    }
    dropBall(editor, X, Y);
    dropTriangle(editor, X, Y);
    dropTextPicture(editor, X, Y);
    if (fixShadowCorner(editor, X, Y) == Press::Over) {
        return;
    }
    leaveShadow(editor);
    if (deleteObject(editor, X, Y) == Press::Over) {
        return;
    }
    if (pickUnderPointer(editor, X, Y) == Picking::Over) {
        return;
    }
    if (Shift == kShiftKey) {
        holdPickedTogether(editor, X, Y);
    }
    closePress(editor, Button, X, Y);
}

} // namespace zeltrona::editor
