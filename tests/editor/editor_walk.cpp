#include "tests/editor/editor_walk.h"

#include "document/sequence.h"
#include "editor/body_panel.h"
#include "editor/keyboard.h"
#include "editor/pointer.h"
#include "editor/toolbox.h"
#include "tests/editor/round_trip.h"

#include <algorithm>
#include <cmath>

namespace zeltrona::editor::testing {

using document::FrameRecords;
using document::PathRec;

namespace {

constexpr int kPlayers = 6;
constexpr int kMostFrames = 8;
constexpr std::size_t kMostPathPoints = 902;

/// Quarters of a unit from 8 beside the board on either side.
float placeOf(std::uint8_t coarse, std::uint8_t fine, int length) {
    const int quarters = (coarse * 256 + fine) * (length + 16) * 4 / 65536;
    return static_cast<float>(quarters) / 4.0F - 8.0F;
}

void layOut(std::vector<document::PlayerRec>& players, float x) {
    players.clear();
    for (int i = 0; i < kPlayers; ++i) {
        document::PlayerRec player;
        player.x = x;
        player.y = static_cast<float>(20 + i * 48);
        player.txt = std::to_string(i + 1);
        player.angle = 90;
        players.push_back(player);
    }
}

bool isNoneOrBelow(std::int16_t index, std::size_t count) {
    return index == -1 || (index >= 0 && static_cast<std::size_t>(index) < count);
}

bool arePathsSound(const std::vector<PathRec>& paths) {
    return !paths.empty() && std::all_of(paths.begin(), paths.end(), [](const PathRec& path) {
        return !path.pts.empty() && path.pts.size() <= kMostPathPoints;
    });
}

bool arePlayersSound(const std::vector<document::PlayerRec>& players) {
    return !players.empty() && players.size() <= kPlayers
           && std::all_of(players.begin(), players.end(), [](const auto& player) {
                  return player.angle >= 0 && player.angle < 360 && player.body >= 0 && player.body <= 3;
              });
}

} // namespace

void WalkHost::changeFrame(bool up) {
    if (up) {
        stepUp(m_play, m_editor.session, m_editor.records, countFrames(m_play));
    } else {
        stepDown(m_play, m_editor.session, m_editor.records);
    }
    sawFrameChange = true;
}

void WalkHost::redrawBoard(float pointerX, float pointerY) {
    brokeAPromise |= !std::isfinite(pointerX) || !std::isfinite(pointerY);
}

void WalkHost::setTimerEnabled(bool enabled) {
    brokeAPromise |= enabled;
}

void WalkHost::showStatus(const std::string& utf8) {
    brokeAPromise |= utf8.empty();
}

std::string WalkHost::localText(std::int16_t offset) {
    brokeAPromise |= offset < 23 || offset > 32;
    return "hint";
}

void WalkHost::message(const std::string& utf8, MessageIcon icon) {
    brokeAPromise |= utf8.empty() || icon != MessageIcon::Information;
    whileOpen();
}

std::optional<Color> WalkHost::askColor(bool cancelIsError) {
    whileOpen();
    if (cancelIsError && (answer & 1) != 0) {
        return std::nullopt;
    }
    return answer * 0x010305;
}

std::optional<TextAnswer> WalkHost::askText() {
    whileOpen();
    if ((answer & 1) != 0) {
        return std::nullopt;
    }
    TextAnswer text;
    text.text = std::string(1 + answer % 7U, 'x');
    text.fontName = (answer & 2) != 0 ? "Courier" : "";
    text.bold = (answer & 4) != 0;
    text.color = answer;
    return text;
}

void WalkHost::storeFont(const std::string& name, std::int16_t) {
    brokeAPromise |= name.empty();
}

void WalkHost::paintToolButton(int index, bool down) {
    brokeAPromise |= index < 0 || index >= tool::kCount
                     || m_editor.state.toolDown[static_cast<std::size_t>(index)] != down;
}

void WalkHost::openBodyPanel(float, float) {
    brokeAPromise |= m_editor.state.bodyToolSide.empty();
}

void WalkHost::closeBodyPanel() {
    brokeAPromise |= !m_editor.state.bodyToolSide.empty();
}

void WalkHost::removeObject(document::ObjectClass kind, std::size_t index) {
    brokeAPromise |= !document::removeObject(m_play, m_editor.session, m_editor.records, kind, index).ok();
    sawRemoval = true;
}

void WalkHost::whileOpen() {
    if ((answer & 0xC0) == 0xC0) {
        changeFrame((answer & 2) != 0);
    }
    if ((answer & 0x30) == 0x30) {
        pic_MouseUp(m_editor, 1, 0, 0.0F, 0.0F);
    }
}

EditorWalk::EditorWalk(const std::string& folder)
    : m_folder(folder),
      m_play(folder + "/walk.zpf"),
      m_host(m_play, m_editor),
      m_editor{m_session, m_records, m_state, m_host} {
    layOut(m_records.offPlayers, 40);
    layOut(m_records.defPlayers, 220);
    m_play.replaceAll(labelledConfig());
    saveFrame(m_play, m_session, m_records, 1, false);
}

void EditorWalk::step(const WalkAction& action) {
    m_host.answer = action[5];
    m_host.sawFrameChange = m_host.sawRemoval = false;
    if (action[0] < 192) {
        pointerStep(action);
    } else if (action[0] < 248) {
        controlStep(action);
    } else {
        sequenceStep(action);
    }
    noteStaleIndices();
}

void EditorWalk::pointerStep(const WalkAction& action) {
    constexpr std::array<int, 4> kButtons{1, 1, 1, 2};
    constexpr std::array<int, 8> kShifts{0, 0, 0, 0, 0, 1, 1, 4};
    const float x = placeOf(action[1], action[2], m_host.boardWidth());
    const float y = placeOf(action[3], action[4], m_host.boardHeight());
    const int button = kButtons[action[5] & 3U];
    const int shift = kShifts[(action[5] >> 2U) & 7U];
    if (action[0] < 60) {
        pic_MouseDown(m_editor, button, shift, x, y);
    } else if (action[0] < 110) {
        pic_MouseMove(m_editor, button, shift, x, y);
    } else if (action[0] < 140) {
        pic_MouseMove(m_editor, 0, 0, x, y);
    } else {
        pic_MouseUp(m_editor, button, shift, x, y);
    }
}

void EditorWalk::controlStep(const WalkAction& action) {
    if (action[0] < 216) {
        Picture1_Click(m_editor, static_cast<std::int16_t>(action[1] % tool::kCount));
    } else if (action[0] < 224) {
        m_host.isCurveChecked = !m_host.isCurveChecked;
    } else if (action[0] < 230) {
        Form_KeyDown(m_editor, action[1] < 128 ? 27 : action[1], 0);
    } else if (action[0] < 232) {
        pic_KeyDown(m_editor, action[1] < 128 ? 27 : action[1], 0);
    } else if (action[0] < 240) {
        pBodyTool_Click(m_editor, static_cast<std::int16_t>(action[1] % 5));
    } else if (action[0] < 244) {
        m_session.bodyType = static_cast<std::int16_t>(1 - m_session.bodyType);
    } else {
        cmdCurveShowHide_Click(m_editor);
    }
}

void EditorWalk::sequenceStep(const WalkAction& action) {
    m_lineWasStored |= m_state.lineInProgress;
    const bool isFull = countFrames(m_play) >= kMostFrames;
    if (action[0] < 250) {
        return m_host.changeFrame((action[1] & 1) != 0);
    }
    if (action[0] < 252) {
        saveFrame(m_play, m_session, m_records, m_session.currFrame, false);
        return;
    }
    if (action[0] < 254 && !isFull) {
        makeNewFrame(m_play, m_session, m_records);
    } else {
        deleteShownFrame(m_play, m_session, m_records, m_folder);
    }
    m_host.sawFrameChange = true;
}

void EditorWalk::noteStaleIndices() {
    const bool isPicked = m_state.pickedOff != -1 || m_state.pickedDef != -1 || m_state.pickedBall != -1;
    m_lineWasStored |= m_host.sawFrameChange && m_state.lineInProgress;
    m_picksMayBeStale = isPicked && (m_picksMayBeStale || m_host.sawFrameChange || m_host.sawRemoval);
    m_lineMayBeStale = m_state.lineInProgress && (m_lineMayBeStale || m_host.sawFrameChange);
}

std::string EditorWalk::brokenToolPromise() const {
    const auto& down = m_state.toolDown;
    if (std::count(down.begin(), down.end(), true) > 1) {
        return "two buttons are down";
    }
    const auto first = std::find(down.begin(), down.end(), true);
    const auto tool = first == down.end() ? -1 : static_cast<int>(first - down.begin());
    if (tool != m_state.currTool) {
        return "the tool is not that of the button";
    }
    if (m_state.bodyToolSide.empty() != m_state.bodyToolIndex.empty()) {
        return "the pose panel has half a player";
    }
    return m_host.brokeAPromise ? "the host was asked for something impossible" : "";
}

std::string EditorWalk::brokenLinePromise() const {
    if (!m_state.lineInProgress) {
        if (m_state.editLineIndex != -1 || m_state.lineCurved) {
            return "a line that has ended left traces";
        }
        const bool isShort = std::any_of(m_records.lines.begin(), m_records.lines.end(),
                                         [](const auto& line) { return line.pts.size() < 2; });
        if (isShort && hasLines(m_records.lines) && !m_lineWasStored) {
            return "a line of one point stayed";
        }
        return "";
    }
    if (m_state.lineTool < 0 || m_state.lineTool > 4) {
        return "a line without a line tool";
    }
    if (m_lineMayBeStale) {
        return "";
    }
    const bool isLast = static_cast<std::size_t>(m_state.editLineIndex) + 1 == m_records.lines.size();
    if (!isLast || m_records.lines.back().pts.empty() || !hasLines(m_records.lines)) {
        return "the line in progress is not the last";
    }
    return m_records.lines.back().style == m_state.lineTool ? "" : "the line has another tool's style";
}

std::string EditorWalk::brokenPickPromise() const {
    const int grip = m_state.rotatePick;
    if (grip != -1 && (grip < 100 || grip > 299 || grip % 100 >= kPlayers)) {
        return "a hand of nobody is gripped";
    }
    if (!isNoneOrBelow(m_state.pickedOff, kPlayers) || !isNoneOrBelow(m_state.pickedDef, kPlayers)) {
        return "a player that never was is picked";
    }
    if (m_state.pickedOff != -1 && m_state.pickedDef != -1) {
        return "players of both sides are picked";
    }
    if (!m_picksMayBeStale && !isNoneOrBelow(m_state.pickedBall, m_records.balls.size())) {
        return "a ball that never was is picked";
    }
    if (!isNoneOrBelow(m_state.groupOff, kPlayers) || !isNoneOrBelow(m_state.groupDef, kPlayers)) {
        return "a player that never was is grouped";
    }
    return "";
}

std::string EditorWalk::brokenRecordPromise() const {
    const FrameRecords& r = m_records;
    if (r.balls.empty() || r.lines.empty() || r.triangles.empty() || r.shadows.empty() || r.txtPics.empty()) {
        return "an array has no element";
    }
    if (!arePlayersSound(r.offPlayers) || !arePlayersSound(r.defPlayers)) {
        return "a player is out of its ranges";
    }
    if (!arePathsSound(r.offPaths) || !arePathsSound(r.defPaths) || !arePathsSound(r.ballPaths)) {
        return "a path is empty or too long";
    }
    const bool isSingle = hasBalls(r.balls) || r.balls.size() == 1;
    const bool areMarksSingle = (hasTriangles(r.triangles) || r.triangles.size() == 1)
                                && (hasShadows(r.shadows) || r.shadows.size() == 1)
                                && (hasTxtPics(r.txtPics) || r.txtPics.size() == 1);
    if (!isSingle || !areMarksSingle || (!hasLines(r.lines) && r.lines.size() != 1)) {
        return "an array without data holds more than one element";
    }
    const bool namesAll = std::all_of(r.txtPics.begin(), r.txtPics.end(), [](const auto& picture) {
        return picture.text.empty() == picture.fontName.empty();
    });
    return namesAll ? "" : "a text has no font";
}

std::string EditorWalk::brokenPromise() const {
    for (const auto& broken :
         {brokenToolPromise(), brokenLinePromise(), brokenPickPromise(), brokenRecordPromise()}) {
        if (!broken.empty()) {
            return broken;
        }
    }
    return "";
}

} // namespace zeltrona::editor::testing
