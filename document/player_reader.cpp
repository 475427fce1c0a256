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

} // namespace

bool readSlot(const PlayFile& play, std::int16_t frame, std::string_view side, std::size_t slot,
              PlayerRec& player) {
    const std::string section = frameSection(frame);
    const std::string key = indexedKey(side, slot);
    const std::optional<PointF> position = parsePosition(readText(play, section, key, TextBuffer::Slot));
    if (!position) {
        return false;
    }
    player.x = position->x;
    player.y = position->y;
    player.skin = play.readInt(kConfigSection, "skin" + key, 0);
    player.body = static_cast<std::int16_t>(play.readInt(section, "body" + key, 0));
    player.angle = static_cast<std::int16_t>(play.readInt(section, "angle" + key, 0));
    player.txt = readText(play, kConfigSection, "txt" + key, TextBuffer::Slot);
    return !player.txt.empty();
}

void readSidePlayers(const PlayFile& play, std::int16_t frame, std::string_view side, PlayerRec& scratch,
                     std::vector<PlayerRec>& dest) {
    const ReadScope scope(play);
    bool found = false;
    for (std::size_t slot = 0; slot < kSlotCount; ++slot) {
        if (!readSlot(play, frame, side, slot, scratch)) {
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
