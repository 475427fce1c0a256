#include "editor/picking.h"

#include "document/number_text.h"
#include "editor/array_elements.h"
#include "editor/hit_test.h"

namespace zeltrona::editor {

using document::PointF;
using document::roundToInt16;

namespace {

constexpr std::int16_t kPictureSide = 26;
constexpr char kNoCurveInFirstFrame[] = "It not allowed to make curved movement in first sequence";

struct WholePoint {
    std::int16_t x = 0;
    std::int16_t y = 0;
};

WholePoint rounded(PointF place) {
    return {roundToInt16(place.x), roundToInt16(place.y)};
}

WholePoint offset(PointF from, PointF to) {
    return {roundToInt16(static_cast<double>(to.x) - static_cast<double>(from.x)),
            roundToInt16(static_cast<double>(to.y) - static_cast<double>(from.y))};
}

template<typename Record> PointF placeOf(const Record& record) {
    return {record.x, record.y};
}

bool hitsPicture(PointF place, PointF pointer) {
    const WholePoint box = rounded(place);
    const WholePoint at = rounded(pointer);
    return pointInBox(box.x, box.y, kPictureSide, kPictureSide, at.x, at.y);
}

const std::vector<document::PlayerRec>& playersOf(EditorContext& editor, Side side) {
    return side == Side::Off ? editor.records.offPlayers : editor.records.defPlayers;
}

void gripHand(EditorContext& editor, Side side, std::int16_t index, WholePoint at) {
    editor.state.rotatePick = static_cast<std::int16_t>(index + (side == Side::Off ? 100 : 200));
    editor.state.grabDX = handAngle(editor.records, side, index, at.x, at.y);
}

/// A hand on the way is gripped and hides nothing behind it, so that a later player's body still wins.
bool hitsPlayer(EditorContext& editor, Side side, std::int16_t index, PointF pointer) {
    if (editor.session.bodyType != 1) {
        return hitsPicture(placeOf(playersOf(editor, side)[static_cast<std::size_t>(index)]), pointer);
    }
    const WholePoint at = rounded(pointer);
    const int hit = hitBodyHand(editor.records, side, index, at.x, at.y);
    if (hit == 2) {
        gripHand(editor, side, index, at);
    }
    return hit == 1;
}

std::int16_t firstPlayerHit(EditorContext& editor, Side side, PointF pointer) {
    const std::int16_t last = upperBound(playersOf(editor, side));
    for (int i = 0; i <= last; ++i) {
        if (hitsPlayer(editor, side, static_cast<std::int16_t>(i), pointer)) {
            return static_cast<std::int16_t>(i);
        }
    }
    return -1;
}

bool refusesCurve(EditorContext& editor) {
    if (!editor.host.curveChecked() || editor.session.currFrame != 1) {
        return false;
    }
    editor.host.message(kNoCurveInFirstFrame, MessageIcon::Information);
    return true;
}

void holdPlayer(EditorContext& editor, PointF place, PointF pointer) {
    const WholePoint grab = offset(pointer, place);
    editor.state.grabDX = grab.x;
    editor.state.grabDY = grab.y;
}

void holdBall(EditorContext& editor, PointF place, PointF pointer) {
    const WholePoint grab = offset(pointer, place);
    editor.state.ballGrabDX = grab.x;
    editor.state.ballGrabDY = grab.y;
}

Picking takePlayer(EditorContext& editor, Side side, std::int16_t index, PointF pointer) {
    if (refusesCurve(editor)) {
        return Picking::Over;
    }
    const auto* player = elementAt(playersOf(editor, side), index);
    (side == Side::Off ? editor.state.pickedOff : editor.state.pickedDef) = index;
    const PointF place = placeOf(*player);
    editor.state.originX = rounded(place).x;
    editor.state.originY = rounded(place).y;
    holdPlayer(editor, place, pointer);
    return Picking::GoesOn;
}

Picking pickOffence(EditorContext& editor, PointF pointer) {
    const std::int16_t index = firstPlayerHit(editor, Side::Off, pointer);
    if (index == -1) {
        return Picking::GoesOn;
    }
    editor.state.pickedDef = -1;
    return takePlayer(editor, Side::Off, index, pointer);
}

Picking pickDefence(EditorContext& editor, PointF pointer) {
    const std::int16_t index = firstPlayerHit(editor, Side::Def, pointer);
    if (index == -1) {
        return Picking::GoesOn;
    }
    editor.state.pickedOff = -1;
    editor.state.rotatePick = -1;
    return takePlayer(editor, Side::Def, index, pointer);
}

Picking takeBall(EditorContext& editor, std::int16_t index, PointF pointer) {
    if (editor.session.bodyType == 1) {
        editor.state.rotatePick = -1;
    }
    editor.state.pickedBall = index;
    if (refusesCurve(editor)) {
        editor.state.pickedBall = -1;
        return Picking::Over;
    }
    const PointF place = placeOf(editor.records.balls[static_cast<std::size_t>(index)]);
    editor.state.ballOriginX = rounded(place).x;
    editor.state.ballOriginY = rounded(place).y;
    holdBall(editor, place, pointer);
    return Picking::GoesOn;
}

Picking pickBalls(EditorContext& editor, PointF pointer) {
    for (int i = 0; i <= upperBound(editor.records.balls); ++i) {
        if (!hitsPicture(placeOf(editor.records.balls[static_cast<std::size_t>(i)]), pointer)) {
            continue;
        }
        if (takeBall(editor, static_cast<std::int16_t>(i), pointer) == Picking::Over) {
            return Picking::Over;
        }
    }
    return Picking::GoesOn;
}

} // namespace

Picking pickUnderPointer(EditorContext& editor, float x, float y) {
    editor.state.rotatePick = -1;
    const PointF pointer{x, y};
    if (pickOffence(editor, pointer) == Picking::Over) {
        return Picking::Over;
    }
    if (pickDefence(editor, pointer) == Picking::Over) {
        return Picking::Over;
    }
    return pickBalls(editor, pointer);
}

void holdPickedTogether(EditorContext& editor, float x, float y) {
    EditorState& state = editor.state;
    const PointF pointer{x, y};
    if (state.pickedOff != -1) {
        state.groupOff = state.pickedOff;
    }
    if (const auto* player = elementAt(editor.records.offPlayers, state.pickedOff)) {
        holdPlayer(editor, placeOf(*player), pointer);
    }
    if (state.pickedDef != -1) {
        state.groupDef = state.pickedDef;
    }
    if (const auto* player = elementAt(editor.records.defPlayers, state.pickedDef)) {
        holdPlayer(editor, placeOf(*player), pointer);
    }
    if (const auto* ball = elementAt(editor.records.balls, state.pickedBall)) {
        holdBall(editor, placeOf(*ball), pointer);
    }
}

} // namespace zeltrona::editor
