#pragma once

#include "editor/body_panel.h"
#include "editor/delete_tool.h"
#include "editor/keyboard.h"
#include "editor/line_drawing.h"
#include "editor/pointer.h"
#include "editor/status_hint.h"
#include "editor/toolbox.h"

#include <deque>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace zeltrona::editor {

/// Readable mismatches.
void PrintTo(const EditorState& state, std::ostream* out);

namespace testing {

constexpr int kLeft = 1;
constexpr int kRight = 2;
constexpr int kShift = 1;
constexpr int kAlt = 4;

/// A host that answers from a script and notes, in order, all that it is asked:
/// "timer off", "redraw 1 2", "status ...", "message ...", "color", "color or nothing", "text", "font Arial
/// 238", "button 5 down", "popup", "panel 1 2", "close panel", "remove ball 0".
class ScriptedHost : public EditorHost {
public:
    bool isCurveChecked = false;
    int width = 363;
    int height = 332;
    Color heldColor = 0;
    std::deque<std::optional<Color>> colors;
    std::deque<std::optional<TextAnswer>> texts;
    /// What happens while a dialog or a message is open.
    std::function<void()> whileOpen;
    /// Set by the desk: takes the object out of its records.
    std::function<void(document::ObjectClass, std::size_t)> onRemove;
    std::vector<std::string> calls;

    void redrawBoard(float pointerX, float pointerY) override;
    void setTimerEnabled(bool enabled) override;
    void showStatus(const std::string& utf8) override;
    /// "[23]" for offset 23.
    std::string localText(std::int16_t offset) override;
    void message(const std::string& utf8, MessageIcon icon) override;
    std::optional<Color> askColor(bool cancelIsError) override;
    std::optional<TextAnswer> askText() override;
    void storeFont(const std::string& name, std::int16_t charset) override;
    bool curveChecked() override { return isCurveChecked; }
    void paintToolButton(int index, bool down) override;
    void openPopUpMenu() override;
    void openBodyPanel(float x, float y) override;
    void closeBodyPanel() override;
    /// 6 for each character.
    int textWidth(const std::string& text) override { return 6 * static_cast<int>(text.size()); }
    int textHeight(const std::string&) override { return 14; }
    int boardWidth() override { return width; }
    int boardHeight() override { return height; }
    void removeObject(document::ObjectClass kind, std::size_t index) override;

private:
    void note(const std::string& call) { calls.push_back(call); }
    void open();
};

/// A board of its own: frame 2, circles, one player a side, one ball, none of them near another.
struct Desk {
    Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    document::Session session;
    document::FrameRecords records;
    EditorState state;
    ScriptedHost host;
    EditorContext editor{session, records, state, host};

    void press(float x, float y, int button = kLeft, int shift = 0) {
        pic_MouseDown(editor, button, shift, x, y);
    }
    void move(float x, float y, int button = 0, int shift = 0) { pic_MouseMove(editor, button, shift, x, y); }
    void drag(float x, float y) { move(x, y, kLeft); }
    void release(int shift = 0) { pic_MouseUp(editor, kLeft, shift, 0.0F, 0.0F); }
    void click(std::int16_t index) { Picture1_Click(editor, index); }

    /// Marks the button of a tool as down, with nothing begun.
    void takeTool(std::int16_t index);

    /// The noted calls that begin with a word, and how many.
    std::vector<std::string> callsOf(const std::string& word) const;
    std::size_t countOf(const std::string& word) const { return callsOf(word).size(); }
};

document::PlayerRec playerAt(float x, float y, const std::string& label = "1", std::int16_t angle = 90);

/// One numbered step of a procedure: what stands before, the event, and what has changed after it. All that
/// `change` doesn't touch must be as it was.
struct StepCase {
    const char* name;
    std::function<void(Desk&)> arrange;
    std::function<void(Desk&)> event;
    std::function<void(Desk&)> change;
    std::vector<std::string> calls;
};
void PrintTo(const StepCase& step, std::ostream* out);

/// Runs the step on one desk, its expected change on another, and compares everything.
void checkStep(const StepCase& step);

} // namespace testing
} // namespace zeltrona::editor
