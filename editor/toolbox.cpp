#include "editor/toolbox.h"

#include "editor/array_elements.h"
#include "editor/status_hint.h"

namespace zeltrona::editor {

namespace {

constexpr float kParkingPlace = 10.0F;
constexpr std::int16_t kShadowStart = 1;
constexpr std::int16_t kShadowStartEnd = 10;

bool& isDown(EditorContext& editor, std::int16_t index) {
    return editor.state.toolDown[static_cast<std::size_t>(index)];
}

void putOtherButtonsUp(EditorContext& editor, std::int16_t index) {
    for (std::int16_t i = 0; i < tool::kCount; ++i) {
        if (i == index || !isDown(editor, i)) {
            continue;
        }
        isDown(editor, i) = false;
        editor.host.paintToolButton(i, false);
    }
}

void turnButton(EditorContext& editor, std::int16_t index) {
    isDown(editor, index) = !isDown(editor, index);
    editor.state.currTool = isDown(editor, index) ? index : tool::kNone;
    editor.host.paintToolButton(index, isDown(editor, index));
}

void leaveTool(EditorContext& editor, std::int16_t index) {
    editor.state.currTool = tool::kNone;
    isDown(editor, index) = true;
    Picture1_Click(editor, index);
}

// The button that went up asks as well: the tool sets a colour and is no mode.
void askLineColor(EditorContext& editor) {
    if (const auto color = editor.host.askColor(false)) {
        editor.session.colorLine = *color;
    }
}

void beginObject(EditorContext& editor, std::int16_t index) {
    bool begun = true;
    if (index == tool::kText) {
        begun = beginTextPicture(editor);
    } else if (index == tool::kBall) {
        beginBall(editor);
    } else if (index == tool::kTriangle) {
        beginTriangle(editor);
    } else if (index == tool::kShadow) {
        begun = beginShadow(editor);
    }
    if (begun) {
        editor.state.currTool = index;
    } else {
        leaveTool(editor, index);
    }
}

} // namespace

int toolImageOffset(int number, int state) {
    return (number * 2 - 2) * 20 + (state == 1 ? 20 : 0);
}

void Picture1_Click(EditorContext& editor, std::int16_t Index) {
    putOtherButtonsUp(editor, Index);
    turnButton(editor, Index);
    if (Index == tool::kColor) {
        askLineColor(editor);
    }
    if (isDown(editor, Index)) {
        beginObject(editor, Index);
    }
    if (isDown(editor, Index)) {
        showStatusHint(editor, Index, false, 0.0F, 0.0F);
    }
}

void beginBall(EditorContext& editor) {
    auto& balls = editor.records.balls;
    if (auto* ball = elementAt(balls, addElement(balls, hasBalls(balls)))) {
        *ball = {kParkingPlace, kParkingPlace};
    }
}

void beginTriangle(EditorContext& editor) {
    auto& triangles = editor.records.triangles;
    if (auto* triangle = elementAt(triangles, addElement(triangles, hasTriangles(triangles)))) {
        *triangle = {kParkingPlace, kParkingPlace, editor.session.colorLine};
    }
}

bool beginShadow(EditorContext& editor) {
    auto& shadows = editor.records.shadows;
    const std::int16_t index = addElement(shadows, hasShadows(shadows));
    const auto color = editor.host.askColor(true);
    // An open dialog lets the playback go on, which may have changed the frame: look for the element again.
    auto* shadow = elementAt(shadows, index);
    if (!color || shadow == nullptr) {
        return false;
    }
    *shadow = {kShadowStart, kShadowStart, kShadowStartEnd, kShadowStartEnd, *color};
    return true;
}

bool beginTextPicture(EditorContext& editor) {
    auto answer = editor.host.askText();
    if (!answer || answer->text.empty()) {
        return false;
    }
    auto& txtPics = editor.records.txtPics;
    auto* picture = elementAt(txtPics, addElement(txtPics, hasTxtPics(txtPics)));
    if (picture == nullptr) {
        return false;
    }
    if (answer->fontName.empty()) {
        answer->fontName = "Arial";
    }
    const float y = static_cast<float>(editor.host.textHeight(answer->text)) + kParkingPlace;
    *picture = {answer->text,         kParkingPlace,    y,
                answer->fontName,     answer->fontSize, answer->color,
                answer->bold,         answer->italic,   answer->underline,
                answer->strikethrough};
    editor.session.fontCharset = answer->charset;
    editor.host.storeFont(answer->fontName, answer->charset);
    return true;
}

void cmdCurveShowHide_Click(EditorContext& editor) {
    editor.session.showCurves = editor.session.showCurves == 0 ? -1 : 0;
    editor.host.redrawBoard(0.0F, 0.0F);
}

} // namespace zeltrona::editor
