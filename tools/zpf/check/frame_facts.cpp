#include "tools/zpf/check/frame_facts.h"

#include "document/frame_store.h"
#include "document/player_reader.h"
#include "document/text_buffers.h"

#include <algorithm>

namespace zeltrona::zpf {
namespace {

void readSide(const document::PlayFile& play, std::int16_t frame, SideFacts& side) {
    document::PlayerRec player;
    for (std::size_t slot = 0; slot < side.read.size(); ++slot) {
        side.read[slot] = document::readSlot(play, frame, side.side, slot, player);
    }
    side.players = static_cast<std::size_t>(std::count(side.read.begin(), side.read.end(), true));
}

} // namespace

std::size_t FrameFacts::lengthOf(std::string_view list) const {
    const auto found = std::find(kListNames.begin(), kListNames.end(), list);
    return found == kListNames.end() ? 0 : lengths[static_cast<std::size_t>(found - kListNames.begin())];
}

FrameFacts readFrameFacts(const document::PlayFile& play, std::int16_t frame) {
    FrameFacts facts;
    document::Session session;
    document::loadFrame(play, session, facts.records, frame);
    readSide(play, frame, facts.off);
    readSide(play, frame, facts.def);
    const document::FrameRecords& read = facts.records;
    facts.lengths = {read.balls.size(), read.triangles.size(), read.lines.size(), read.shadows.size(),
                     read.txtPics.size()};
    for (std::size_t list = 0; list < kListNames.size(); ++list) {
        // A list without its first key is read as one element in the empty state.
        if (document::readText(play, document::frameSection(frame), document::indexedKey(kListNames[list], 0),
                               document::TextBuffer::List)
                .empty()) {
            facts.lengths[list] = 0;
        }
    }
    return facts;
}

} // namespace zeltrona::zpf
