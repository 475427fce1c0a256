#include "tools/zpf/check/side_check.h"

#include "document/frame_keys.h"
#include "document/frame_records.h"
#include "tools/zpf/counted.h"

#include <algorithm>

namespace zeltrona::zpf {
namespace {

using document::TextBuffer;

/// Readers fill the places of a side one after the other, a save stores them by place.
void checkMoveUp(const CheckDesk& desk, std::string_view key, std::size_t slot, const SideFacts& side) {
    const auto place =
        static_cast<std::size_t>(std::count(side.read.begin(), side.read.begin() + slot, true));
    if (place < slot) {
        desk.add(FindingKind::SlotHole, key,
                 "moves up to place " + std::to_string(place)
                     + " over an empty slot: a save would store it as "
                     + document::indexedKey(side.side, place) + ", with the label of that slot");
    }
}

} // namespace

void checkSlot(const CheckDesk& desk, std::string_view key, const FrameKey& shape, const SideFacts& side,
               std::int16_t frame) {
    const auto slot = static_cast<std::size_t>(shape.index);
    const std::string label = document::indexedKey(side.side == "off" ? "txtOff" : "txtDef", slot);
    desk.checkLength(key, TextBuffer::Slot);
    if (side.read[slot]) {
        checkMoveUp(desk, key, slot, side);
    } else if (document::readText(desk.play(), document::kConfigSection, label, TextBuffer::Slot).empty()) {
        desk.add(FindingKind::MissingLabel, key, label + " is missing or empty, so this player is dropped");
    } else {
        desk.add(FindingKind::BadPlace, key,
                 desk.quoted(desk.whole(key)) + " is no place \"x,y\", so this player is dropped from frame "
                     + std::to_string(frame));
    }
}

void checkTeamSize(const CheckDesk& desk, const SideFacts& side, std::size_t before,
                   std::int16_t frameBefore) {
    if (frameBefore == 0 || side.players == before) {
        return;
    }
    const std::string name = side.side == "off" ? "offence" : "defence";
    const std::string frame = "frame " + std::to_string(frameBefore);
    std::string text = name + " has " + counted(side.players, "player") + ", and " + counted(before, "player")
                       + " in " + frame;
    if (side.players == 0) {
        text += ": those stay on the board, and playback stops with an error";
    } else if (side.players < before) {
        text += ": playback stops with an error";
    } else {
        text += ": playback shows the others only in this frame";
    }
    desk.add(FindingKind::TeamSize, {}, std::move(text));
}

void checkEmptySide(const CheckDesk& desk, const SideFacts& side,
                    const std::vector<document::PlayerRec>& players) {
    if (side.players == 1 && !document::hasPlayers(players)) {
        const auto slot = std::find(side.read.begin(), side.read.end(), true) - side.read.begin();
        desk.add(FindingKind::EmptyObject, document::indexedKey(side.side, static_cast<std::size_t>(slot)),
                 "equals the empty state, so it counts as absent");
    }
}

} // namespace zeltrona::zpf
