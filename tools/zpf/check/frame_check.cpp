#include "tools/zpf/check/frame_check.h"

#include "document/frame_store.h"
#include "tools/zpf/check/frame_facts.h"
#include "tools/zpf/check/key_shape.h"
#include "tools/zpf/check/list_check.h"
#include "tools/zpf/check/side_check.h"

#include <limits>

namespace zeltrona::zpf {
namespace {

constexpr std::int32_t kLastPose = 3;

/// A pose or a turn stands beside the place of its player.
void checkBeside(const CheckDesk& desk, std::string_view key, const FrameKey& shape) {
    if (!desk.has(document::indexedKey(shape.name, static_cast<std::size_t>(shape.index)))) {
        desk.add(FindingKind::StaleKey, key, "there is no player in this slot");
    } else if (shape.kind == FrameKeyKind::Body) {
        desk.checkWhole(key, 0, kLastPose);
    } else {
        desk.checkWhole(key, std::numeric_limits<std::int16_t>::min(),
                        std::numeric_limits<std::int16_t>::max());
    }
}

void checkCurve(const CheckDesk& desk, std::string_view key, const FrameKey& shape, std::size_t owners) {
    if (desk.whole(key).empty()) {
        return;
    }
    if (static_cast<std::size_t>(shape.index) >= owners) {
        desk.add(FindingKind::StaleKey, key,
                 shape.name == "Ball" ? "there is no such ball to move" : "there is no such player to move");
    }
    checkCurveFields(desk, key);
}

/// A list of one element that equals the empty state counts as absent, though its key is there.
void checkEmptyLists(const CheckDesk& desk, const FrameFacts& facts) {
    const document::FrameRecords& read = facts.records;
    const std::array<bool, kListNames.size()> there{
        document::hasBalls(read.balls), document::hasTriangles(read.triangles),
        document::hasLines(read.lines), document::hasShadows(read.shadows),
        document::hasTxtPics(read.txtPics)};
    for (std::size_t list = 0; list < there.size(); ++list) {
        if (facts.lengths[list] == 1 && !there[list]) {
            desk.add(FindingKind::EmptyObject, document::indexedKey(kListNames[list], 0),
                     "equals the empty state, so it counts as absent");
        }
    }
}

void checkEmptyPaths(const CheckDesk& desk, std::string_view name,
                     const std::vector<document::PathRec>& paths) {
    const std::string key = document::curveKey(name, 0);
    if (!desk.whole(key).empty() && !document::hasPaths(paths)) {
        desk.add(FindingKind::EmptyObject, key,
                 "starts at 0,0, so all paths of this kind count as absent in this frame");
    }
}

/// A frame without players of a side goes on showing those of the frame before.
std::size_t shownPlayers(const SideFacts& side, std::size_t before) {
    return side.players > 0 ? side.players : before;
}

void checkKeys(const CheckDesk& desk, const FrameFacts& facts, const TeamSizes& shown, std::int16_t frame) {
    for (const ListedKey& listed : desk.section().keys) {
        const auto shape = frameKeyOf(listed.name);
        if (listed.repeated || (shape && shape->kind == FrameKeyKind::Mark)) {
            continue;
        }
        if (!shape) {
            desk.add(FindingKind::UnknownKey, listed.name, "no such key is read in a frame");
        } else if (shape->kind == FrameKeyKind::Slot) {
            checkSlot(desk, listed.name, *shape, facts.side(shape->name), frame);
        } else if (shape->kind == FrameKeyKind::List) {
            checkListKey(desk, listed.name, *shape, facts.lengthOf(shape->name));
        } else if (shape->kind == FrameKeyKind::Curve) {
            const std::size_t players = shape->name == "off" ? shown.off : shown.def;
            checkCurve(desk, listed.name, *shape, shape->name == "Ball" ? facts.lengthOf("Ball") : players);
        } else {
            checkBeside(desk, listed.name, *shape);
        }
    }
}

} // namespace

void checkFrame(const CheckDesk& desk, std::int16_t frame, TeamSizes& sizes) {
    const FrameFacts facts = readFrameFacts(desk.play(), frame);
    checkTeamSize(desk, facts.off, sizes.off, sizes.frame);
    checkTeamSize(desk, facts.def, sizes.def, sizes.frame);
    const TeamSizes shown{frame, shownPlayers(facts.off, sizes.off), shownPlayers(facts.def, sizes.def)};
    checkKeys(desk, facts, shown, frame);
    checkEmptyLists(desk, facts);
    checkEmptySide(desk, facts.off, facts.records.offPlayers);
    checkEmptySide(desk, facts.def, facts.records.defPlayers);
    checkEmptyPaths(desk, "off", facts.records.offPaths);
    checkEmptyPaths(desk, "def", facts.records.defPaths);
    checkEmptyPaths(desk, "Ball", facts.records.ballPaths);
    sizes = {frame, facts.off.players, facts.def.players};
}

} // namespace zeltrona::zpf
