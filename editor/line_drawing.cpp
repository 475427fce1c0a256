#include "editor/line_drawing.h"

#include "editor/array_elements.h"

namespace zeltrona::editor {

namespace {

/// Keeps the lines ahead of the one in progress. An array never has zero elements: the only line is reset
/// instead.
void cutLinesAtEdit(EditorContext& editor) {
    auto& lines = editor.records.lines;
    const std::int16_t index = editor.state.editLineIndex;
    if (lines.size() == 1) {
        document::resetLines(lines);
    } else if (index > 0 && elementAt(lines, index) != nullptr) {
        lines.resize(static_cast<std::size_t>(index));
    }
}

void endEdit(EditorContext& editor) {
    editor.state.editLineIndex = -1;
    editor.state.lineCurved = false;
    editor.host.redrawBoard(0.0F, 0.0F);
}

/// The line that gets the next point; null when the frame can hold no further line.
document::LineRec* lineForPoint(EditorContext& editor, bool newLine) {
    auto& lines = editor.records.lines;
    const bool hasData = hasLines(lines);
    if (hasData && !newLine) {
        return &lines.back();
    }
    editor.state.editLineIndex = addElement(lines, hasData);
    auto* line = elementAt(lines, editor.state.editLineIndex);
    if (line != nullptr) {
        line->pts.clear();
    }
    return line;
}

} // namespace

void addLinePoint(EditorContext& editor, float x, float y, bool newLine) {
    auto* line = lineForPoint(editor, newLine);
    if (line == nullptr) {
        return;
    }
    line->pts.push_back({x, y});
    line->curved = editor.state.lineCurved;
    line->color = editor.session.colorLine;
    line->style = static_cast<std::uint8_t>(editor.state.lineTool);
}

bool lineMatchesCurveBox(EditorContext& editor) {
    return editor.host.curveChecked() == editor.state.lineCurved;
}

void finishLine(EditorContext& editor) {
    editor.state.lineInProgress = false;
    const auto* line = elementAt(editor.records.lines, editor.state.editLineIndex);
    if (line != nullptr && line->pts.size() == 1) {
        cutLinesAtEdit(editor);
    }
    endEdit(editor);
}

void dropLine(EditorContext& editor) {
    cutLinesAtEdit(editor);
    editor.state.lineInProgress = false;
    endEdit(editor);
}

} // namespace zeltrona::editor
