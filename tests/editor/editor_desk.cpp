#include "tests/editor/editor_desk.h"

#include "document/number_text.h"

#include <gtest/gtest.h>
#include <ostream>

namespace zeltrona::editor {

void PrintTo(const EditorState& s, std::ostream* out) {
    *out << "currTool " << s.currTool << ", down";
    for (const bool down : s.toolDown) {
        *out << ' ' << down;
    }
    *out << "\n line " << s.lineInProgress << s.lineCurved << " tool " << s.lineTool << " index "
         << s.editLineIndex << "\n picked " << s.pickedOff << ' ' << s.pickedDef << ' ' << s.pickedBall
         << " group " << s.groupOff << ' ' << s.groupDef << " rotate " << s.rotatePick << "\n grab "
         << s.grabDX << ' ' << s.grabDY << " origin " << s.originX << ' ' << s.originY << " ball grab "
         << s.ballGrabDX << ' ' << s.ballGrabDY << " ball origin " << s.ballOriginX << ' ' << s.ballOriginY
         << "\n shadow " << s.shadowSizing << " panel '" << s.bodyToolSide << "' '" << s.bodyToolIndex
         << '\'';
}

namespace testing {

namespace {

std::string twoNumbers(float x, float y) {
    return document::singleText(x) + " " + document::singleText(y);
}

const char* nameOf(document::ObjectClass kind) {
    switch (kind) {
    case document::ObjectClass::Ball:
        return "ball";
    case document::ObjectClass::Triangle:
        return "triangle";
    case document::ObjectClass::Shadow:
        return "shadow";
    case document::ObjectClass::TxtPic:
        return "text";
    case document::ObjectClass::Line:
        return "line";
    }
    return "";
}

template<typename Record> void takeOut(std::vector<Record>& array, std::size_t index) {
    array.erase(array.begin() + static_cast<std::ptrdiff_t>(index));
    if (array.empty()) {
        array.resize(1);
    }
}

void takeOut(document::FrameRecords& records, document::ObjectClass kind, std::size_t index) {
    switch (kind) {
    case document::ObjectClass::Ball:
        return takeOut(records.balls, index);
    case document::ObjectClass::Triangle:
        return takeOut(records.triangles, index);
    case document::ObjectClass::Shadow:
        return takeOut(records.shadows, index);
    case document::ObjectClass::TxtPic:
        takeOut(records.txtPics, index);
        if (records.txtPics.size() == 1 && records.txtPics[0] == document::TxtPicRec{}) {
            document::resetTxtPics(records.txtPics);
        }
        return;
    case document::ObjectClass::Line:
        takeOut(records.lines, index);
        if (records.lines.size() == 1 && records.lines[0] == document::LineRec{}) {
            document::resetLines(records.lines);
        }
        return;
    }
}

} // namespace

void ScriptedHost::redrawBoard(float pointerX, float pointerY) {
    note("redraw " + twoNumbers(pointerX, pointerY));
}

void ScriptedHost::setTimerEnabled(bool enabled) {
    note(enabled ? "timer on" : "timer off");
}

void ScriptedHost::showStatus(const std::string& utf8) {
    note("status " + utf8);
}

std::string ScriptedHost::localText(std::int16_t offset) {
    return "[" + std::to_string(offset) + "]";
}

void ScriptedHost::message(const std::string& utf8, MessageIcon icon) {
    note((icon == MessageIcon::Information ? "message " : "critical ") + utf8);
    open();
}

std::optional<Color> ScriptedHost::askColor(bool cancelIsError) {
    note(cancelIsError ? "color or nothing" : "color");
    open();
    std::optional<Color> answer;
    if (!colors.empty()) {
        answer = colors.front();
        colors.pop_front();
    }
    if (answer) {
        heldColor = *answer;
    }
    return cancelIsError ? answer : heldColor;
}

std::optional<TextAnswer> ScriptedHost::askText() {
    note("text");
    open();
    if (texts.empty()) {
        return std::nullopt;
    }
    auto answer = texts.front();
    texts.pop_front();
    return answer;
}

void ScriptedHost::storeFont(const std::string& name, std::int16_t charset) {
    note("font " + name + " " + std::to_string(charset));
}

void ScriptedHost::paintToolButton(int index, bool down) {
    note("button " + std::to_string(index) + (down ? " down" : " up"));
}

void ScriptedHost::openPopUpMenu() {
    note("popup");
}

void ScriptedHost::openBodyPanel(float x, float y) {
    note("panel " + twoNumbers(x, y));
}

void ScriptedHost::closeBodyPanel() {
    note("close panel");
}

void ScriptedHost::removeObject(document::ObjectClass kind, std::size_t index) {
    note(std::string("remove ") + nameOf(kind) + " " + std::to_string(index));
    if (onRemove) {
        onRemove(kind, index);
    }
}

void ScriptedHost::open() {
    if (whileOpen) {
        whileOpen();
    }
}

Desk::Desk() {
    session.currFrame = 2;
    session.colorLine = 77;
    records.offPlayers = {playerAt(100, 100, "4")};
    records.defPlayers = {playerAt(200, 100, "5")};
    records.balls = {{300, 250}};
    host.onRemove = [this](document::ObjectClass kind, std::size_t index) { takeOut(records, kind, index); };
}

void Desk::takeTool(std::int16_t index) {
    state.toolDown.fill(false);
    state.toolDown[static_cast<std::size_t>(index)] = true;
    state.currTool = index;
}

std::vector<std::string> Desk::callsOf(const std::string& word) const {
    std::vector<std::string> found;
    for (const auto& call : host.calls) {
        if (call.rfind(word, 0) == 0) {
            found.push_back(call);
        }
    }
    return found;
}

document::PlayerRec playerAt(float x, float y, const std::string& label, std::int16_t angle) {
    document::PlayerRec player;
    player.x = x;
    player.y = y;
    player.txt = label;
    player.angle = angle;
    return player;
}

void PrintTo(const StepCase& step, std::ostream* out) {
    *out << step.name;
}

void checkStep(const StepCase& step) {
    Desk desk;
    Desk expected;
    step.arrange(desk);
    step.arrange(expected);
    desk.host.calls.clear();
    step.event(desk);
    step.change(expected);
    EXPECT_EQ(desk.state, expected.state);
    EXPECT_EQ(desk.records, expected.records);
    EXPECT_EQ(desk.session.colorLine, expected.session.colorLine);
    EXPECT_EQ(desk.session.currFrame, expected.session.currFrame);
    EXPECT_EQ(desk.session.showCurves, expected.session.showCurves);
    EXPECT_EQ(desk.session.fontCharset, expected.session.fontCharset);
    EXPECT_EQ(desk.host.calls, step.calls);
}

} // namespace testing
} // namespace zeltrona::editor
