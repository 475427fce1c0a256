#include "document/number_text.h"
#include "editor/array_elements.h"
#include "editor/hit_test.h"
#include "editor/path_recording.h"
#include "editor/pointer.h"
#include "editor/status_hint.h"

namespace zeltrona::editor {

using document::PointF;
using document::roundToInt16;

namespace {

constexpr int kLeftButton = 1;
constexpr int kTurnStep = 15;
constexpr std::int16_t kLastPlayer = 11;
constexpr char kPathFull[] = "Max number of points in free hand movement is 1000!\r\n"
                             "Next time,increase speed of movement.";

enum class Move { GoesOn, Over };

bool isOnBoard(EditorContext& editor, float x, float y) {
    return x >= 0.0F && x < static_cast<float>(editor.host.boardWidth()) && y >= 0.0F
           && y < static_cast<float>(editor.host.boardHeight());
}

/// The facing after a turn of whole steps. Past a full turn, either way, it starts again at 0, and nowhere
/// between.
std::int16_t turnedAngle(std::int16_t angle, int turn) {
    int turned = (angle >= 360 || angle < 0 ? 0 : angle) + turn;
    if (turned >= 360 || turned <= -360) {
        turned = 0;
    }
    if (turned < 0) {
        turned += 360;
    }
    return static_cast<std::int16_t>(turned);
}

void turnPlayer(EditorContext& editor, Side side, std::int16_t index, PointF pointer) {
    auto* player =
        elementAt(side == Side::Off ? editor.records.offPlayers : editor.records.defPlayers, index);
    if (player == nullptr) {
        return;
    }
    const std::int16_t angle =
        handAngle(editor.records, side, index, roundToInt16(pointer.x), roundToInt16(pointer.y));
    const int steps = roundToInt16((angle - editor.state.grabDX) / static_cast<double>(kTurnStep));
    if (steps == 0) {
        return;
    }
    editor.state.grabDX = static_cast<std::int16_t>(editor.state.grabDX + steps * kTurnStep);
    player->angle = turnedAngle(player->angle, steps * kTurnStep);
    editor.host.redrawBoard(0.0F, 0.0F);
}

Move turnHand(EditorContext& editor, PointF pointer) {
    const std::int16_t grip = editor.state.rotatePick;
    if (editor.session.bodyType != 1 || grip == -1) {
        return Move::GoesOn;
    }
    if (grip < 100 || grip > 299) {
        editor.state.rotatePick = -1;
        return Move::Over;
    }
    const Side side = grip < 200 ? Side::Off : Side::Def;
    const auto index = static_cast<std::int16_t>(grip % 100);
    turnPlayer(editor, side, index > kLastPlayer ? std::int16_t{0} : index, pointer);
    return Move::Over;
}

void catchLostRelease(EditorContext& editor, int button) {
    const EditorState& state = editor.state;
    const bool isGroup = state.groupOff != -1 || state.groupDef != -1;
    if (button != kLeftButton && state.pickedBall != -1 && isGroup) {
        pic_MouseUp(editor, 0, 0, 0.0F, 0.0F);
    }
}

Move stretchRubberBand(EditorContext& editor, PointF pointer) {
    if (!editor.state.lineInProgress) {
        return Move::GoesOn;
    }
    editor.host.redrawBoard(pointer.x, pointer.y);
    return Move::Over;
}

/// Moves the object that a tool has parked; true when there was one.
bool carryParked(EditorContext& editor, PointF pointer) {
    auto& records = editor.records;
    const EditorState& state = editor.state;
    if (state.currTool == tool::kBall && hasBalls(records.balls)) {
        records.balls.back() = {pointer.x, pointer.y};
    } else if (state.currTool == tool::kTriangle && hasTriangles(records.triangles)) {
        records.triangles.back() = {pointer.x, pointer.y, editor.session.colorLine};
    } else if (state.currTool == tool::kText && hasTxtPics(records.txtPics)) {
        records.txtPics.back().x = pointer.x;
        records.txtPics.back().y = pointer.y;
    } else if (state.currTool == tool::kShadow && state.shadowSizing && hasShadows(records.shadows)) {
        records.shadows.back().w = roundToInt16(pointer.x);
        records.shadows.back().h = roundToInt16(pointer.y);
    } else {
        return false;
    }
    return true;
}

Move carryParkedObject(EditorContext& editor, PointF pointer) {
    if (!carryParked(editor, pointer)) {
        return Move::GoesOn;
    }
    editor.host.redrawBoard(pointer.x, pointer.y);
    return Move::Over;
}

Move recordWhileCurved(EditorContext& editor, std::vector<document::PathRec>& paths, std::int16_t owner,
                       PointF place) {
    if (!editor.host.curveChecked() || recordPathPoint(paths, owner, place) == PathPoint::Recorded) {
        return Move::GoesOn;
    }
    editor.host.message(kPathFull, MessageIcon::Information);
    return Move::Over;
}

Move dragBall(EditorContext& editor, int button, PointF pointer) {
    const EditorState& state = editor.state;
    auto* ball = elementAt(editor.records.balls, state.pickedBall);
    if (button != kLeftButton || ball == nullptr) {
        return Move::GoesOn;
    }
    const PointF place{pointer.x + static_cast<float>(state.ballGrabDX),
                       pointer.y + static_cast<float>(state.ballGrabDY)};
    *ball = {place.x, place.y};
    if (recordWhileCurved(editor, editor.records.ballPaths, state.pickedBall, place) == Move::Over) {
        return Move::Over;
    }
    editor.host.redrawBoard(pointer.x, pointer.y);
    return Move::GoesOn;
}

Move dragPlayer(EditorContext& editor, Side side, PointF pointer) {
    const EditorState& state = editor.state;
    auto& records = editor.records;
    const bool isOffence = side == Side::Off;
    const std::int16_t index = isOffence ? state.pickedOff : state.pickedDef;
    auto* player = elementAt(isOffence ? records.offPlayers : records.defPlayers, index);
    if (player == nullptr) {
        return Move::GoesOn;
    }
    player->x = pointer.x + static_cast<float>(state.grabDX);
    player->y = pointer.y + static_cast<float>(state.grabDY);
    return recordWhileCurved(editor, isOffence ? records.offPaths : records.defPaths, index,
                             {player->x, player->y});
}

void dragPlayers(EditorContext& editor, int button, PointF pointer) {
    const bool isPicked = editor.state.pickedOff != -1 || editor.state.pickedDef != -1;
    if (button != kLeftButton || !isPicked) {
        return;
    }
    if (dragPlayer(editor, Side::Off, pointer) == Move::Over) {
        return;
    }
    if (dragPlayer(editor, Side::Def, pointer) == Move::Over) {
        return;
    }
    editor.host.redrawBoard(pointer.x, pointer.y);
}

} // namespace

void pic_MouseMove(EditorContext& editor, int Button, int /*Shift*/, float X, float Y) {
    if (!isOnBoard(editor, X, Y)) {
        return;
    }
    const PointF pointer{X, Y};
    showStatusHint(editor, editor.state.currTool, true, X, Y);
    if (turnHand(editor, pointer) == Move::Over) {
        return;
    }
    catchLostRelease(editor, Button);
    if (stretchRubberBand(editor, pointer) == Move::Over) {
        return;
    }
    if (carryParkedObject(editor, pointer) == Move::Over) {
        return;
    }
    if (dragBall(editor, Button, pointer) == Move::Over) {
        return;
    }
    dragPlayers(editor, Button, pointer);
}

} // namespace zeltrona::editor
