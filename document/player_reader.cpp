#include "document/player_reader.h"

#include "document/field_list.h"
#include "document/frame_keys.h"
#include "document/frame_store.h"
#include "document/number_text.h"
#include "document/text_buffers.h"

#include <optional>
#include <string>

namespace zeltrona::document {

namespace {

/// "x,y": cut at the first comma, the rest taken whole.
std::optional<PointF> parsePosition(std::string_view value) {
    const std::size_t comma = value.find(',');
    if (comma == value.npos) {
        return std::nullopt;
    }
    const std::optional<double> x = numericField(value.substr(0, comma));
    const std::optional<double> y = numericField(value.substr(comma + 1));
    if (!x || !y) {
        return std::nullopt;
    }
    return PointF{toSingle(*x), toSingle(*y)};
}

/// Fills `player` from a slot; false when the slot gives none, and then a usable position has filled it all
/// the same.
bool readSlot(const PlayFile& play, const std::string& section, const std::string& slot, PlayerRec& player) {
    const std::optional<PointF> position = parsePosition(readText(play, section, slot, TextBuffer::Slot));
    if (!position) {
        return false;
    }
    player.x = position->x;
    player.y = position->y;
    player.skin = play.readInt(kConfigSection, "skin" + slot, 0);
    player.body = static_cast<std::int16_t>(play.readInt(section, "body" + slot, 0));
    player.angle = static_cast<std::int16_t>(play.readInt(section, "angle" + slot, 0));
    player.txt = readText(play, kConfigSection, "txt" + slot, TextBuffer::Slot);
    return !player.txt.empty();
}

} // namespace

void readSidePlayers(const PlayFile& play, std::int16_t frame, std::string_view side, PlayerRec& scratch,
                     std::vector<PlayerRec>& dest) {
    const ReadScope scope(play);
    const std::string section = frameSection(frame);
    bool found = false;
    for (std::size_t slot = 0; slot < kSlotCount; ++slot) {
        if (!readSlot(play, section, indexedKey(side, slot), scratch)) {
            continue;
        }
        if (!found) {
            dest.clear();
            found = true;
        }
        dest.push_back(scratch);
    }
}

void readFramePlayers(const PlayFile& play, std::int16_t frame, std::string_view side,
                      std::vector<PlayerRec>& dest) {
    PlayerRec scratch;
    readSidePlayers(play, frame, side, scratch, dest);
}

} // namespace zeltrona::document
