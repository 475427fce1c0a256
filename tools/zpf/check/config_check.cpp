#include "tools/zpf/check/config_check.h"

#include "document/frame_keys.h"
#include "document/frame_store.h"
#include "tools/zpf/check/key_shape.h"

#include <algorithm>
#include <limits>

namespace zeltrona::zpf {
namespace {

using document::TextBuffer;

/// The least and most of a key that stand for something.
struct WholeRange {
    std::string_view key;
    std::int32_t least;
    std::int32_t most;
};
constexpr std::array kRanges{WholeRange{"bodyType", 0, 1}, WholeRange{"courtTexture", 0, 1},
                             WholeRange{"useTexture", 0, 1}, WholeRange{"court", 1, 9},
                             WholeRange{"line", 1, std::numeric_limits<std::int16_t>::max()}};
constexpr WholeRange kColorRange{"", 0, 0xFFFFFF};

void checkWholeKey(const CheckDesk& desk, std::string_view key, std::string_view name) {
    const auto found = std::find_if(kRanges.begin(), kRanges.end(),
                                    [name](const WholeRange& row) { return row.key == name; });
    const WholeRange& range = found == kRanges.end() ? kColorRange : *found;
    desk.checkWhole(key, range.least, range.most);
}

void checkFont(const CheckDesk& desk, std::string_view key) {
    const std::string value = desk.read(key, TextBuffer::Text);
    if (value.empty()) {
        return;
    }
    const std::size_t nameEnd = value.find(',');
    const std::size_t end = nameEnd == value.npos ? nameEnd : value.find(',', nameEnd + 1);
    std::string name;
    std::int16_t charset = 0;
    desk.checkLength(key, TextBuffer::Text);
    if (document::readFontConfig(desk.play(), name, charset)) {
        desk.add(FindingKind::CommaInText, key,
                 desk.quoted(value)
                     + " has no number between its first and second comma: the font is not read");
    } else if (end == value.npos) {
        desk.add(FindingKind::NoClosingComma, key,
                 "the name and the character set each end with a comma: what has none is not read");
    } else if (end + 1 < value.size()) {
        desk.add(FindingKind::ExtraField, key, "what stands behind the second comma is not read");
    }
}

void checkNote(const CheckDesk& desk, std::string_view key, int frame, std::int16_t frames) {
    desk.checkLength(key, TextBuffer::Note);
    desk.checkCharacters(key);
    if (frame < 1 || frame > frames) {
        desk.add(FindingKind::StaleKey, key, "there is no frame " + std::to_string(frame));
    }
}

void checkLabel(const CheckDesk& desk, std::string_view key, bool used) {
    desk.checkLength(key, TextBuffer::Slot);
    desk.checkCharacters(key);
    if (!used && !desk.whole(key).empty()) {
        desk.add(FindingKind::StaleKey, key, "no frame has a player in this slot");
    }
}

void checkSkin(const CheckDesk& desk, std::string_view key, const ConfigKey& shape) {
    const auto slot = static_cast<std::size_t>(shape.index);
    if (!desk.has(document::indexedKey(shape.name == "off" ? "txtOff" : "txtDef", slot))) {
        desk.add(FindingKind::StaleKey, key, "the slot has no label");
    } else {
        desk.checkWhole(key, kColorRange.least, kColorRange.most);
    }
}

void checkKey(const CheckDesk& desk, std::string_view key, const ConfigKey& shape, std::int16_t frames,
              const UsedSlots& used) {
    const auto slot = static_cast<std::size_t>(shape.index);
    switch (shape.kind) {
    case ConfigKeyKind::Whole:
        return checkWholeKey(desk, key, shape.name);
    case ConfigKeyKind::Font:
        return checkFont(desk, key);
    case ConfigKeyKind::Text:
        desk.checkLength(key, TextBuffer::Text);
        return desk.checkCharacters(key);
    case ConfigKeyKind::Note:
        return checkNote(desk, key, shape.index, frames);
    case ConfigKeyKind::Label:
        return checkLabel(desk, key, shape.name == "off" ? used.off[slot] : used.def[slot]);
    case ConfigKeyKind::Skin:
        return checkSkin(desk, key, shape);
    }
}

} // namespace

void checkConfig(const CheckDesk& desk, std::int16_t frames, const UsedSlots& used) {
    for (const ListedKey& listed : desk.section().keys) {
        if (listed.repeated) {
            continue;
        }
        if (const auto shape = configKeyOf(listed.name)) {
            checkKey(desk, listed.name, *shape, frames, used);
        } else {
            desk.add(FindingKind::UnknownKey, listed.name, "no such key is read in Config");
        }
    }
}

} // namespace zeltrona::zpf
