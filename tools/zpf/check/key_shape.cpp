#include "tools/zpf/check/key_shape.h"

#include "document/frame_keys.h"
#include "document/name_match.h"
#include "tools/zpf/arguments.h"

#include <array>
#include <limits>

namespace zeltrona::zpf {
namespace {

using document::sameName;

constexpr int kLastIndex = std::numeric_limits<std::int16_t>::max();
constexpr int kLastSlot = document::kSlotCount - 1;

/// The number between head and tail, as the readers write it when they ask for a key.
std::optional<int> numberWithin(std::string_view key, std::string_view head, std::string_view tail,
                                int last) {
    if (key.size() <= head.size() + tail.size() || !sameName(key.substr(0, head.size()), head)
        || !sameName(key.substr(key.size() - tail.size()), tail)) {
        return std::nullopt;
    }
    const std::string_view digits = key.substr(head.size(), key.size() - head.size() - tail.size());
    if (digits.size() > 1 && digits.front() == '0') {
        return std::nullopt;
    }
    return parseNumber(digits, 0, last);
}

struct FrameRow {
    FrameKeyKind kind;
    std::string_view head;
    std::string_view tail;
    std::string_view name;
    int last;
};
constexpr std::array kFrameRows{
    FrameRow{FrameKeyKind::Slot, "off", "", "off", kLastSlot},
    FrameRow{FrameKeyKind::Slot, "def", "", "def", kLastSlot},
    FrameRow{FrameKeyKind::Angle, "angleoff", "", "off", kLastSlot},
    FrameRow{FrameKeyKind::Angle, "angledef", "", "def", kLastSlot},
    FrameRow{FrameKeyKind::Body, "bodyoff", "", "off", kLastSlot},
    FrameRow{FrameKeyKind::Body, "bodydef", "", "def", kLastSlot},
    FrameRow{FrameKeyKind::List, "Ball", "", "Ball", kLastIndex},
    FrameRow{FrameKeyKind::List, "Triangle", "", "Triangle", kLastIndex},
    FrameRow{FrameKeyKind::List, "Line", "", "Line", kLastIndex},
    FrameRow{FrameKeyKind::List, "Shadow", "", "Shadow", kLastIndex},
    FrameRow{FrameKeyKind::List, "txtPic", "", "txtPic", kLastIndex},
    FrameRow{FrameKeyKind::Curve, "off", "curve", "off", document::kLastPlayerPath},
    FrameRow{FrameKeyKind::Curve, "def", "curve", "def", document::kLastPlayerPath},
    FrameRow{FrameKeyKind::Curve, "Ball", "curve", "Ball", document::kLastBallPath},
};

struct ConfigRow {
    ConfigKeyKind kind;
    std::string_view head;
    std::string_view name;
    int last;
};
constexpr std::array kConfigRows{
    ConfigRow{ConfigKeyKind::Note, "Notes", "Notes", kLastIndex},
    ConfigRow{ConfigKeyKind::Label, "txtOff", "off", kLastSlot},
    ConfigRow{ConfigKeyKind::Label, "txtDef", "def", kLastSlot},
    ConfigRow{ConfigKeyKind::Skin, "skinOff", "off", kLastSlot},
    ConfigRow{ConfigKeyKind::Skin, "skinDef", "def", kLastSlot},
};

constexpr std::array<std::string_view, 11> kWholeKeys{
    "bodyType", "colorOff", "colorDef",   "colorOffFont", "colorDefFont", "colorLine",
    "line",     "court",    "courtColor", "courtTexture", "useTexture"};

} // namespace

std::optional<FrameKey> frameKeyOf(std::string_view key) {
    if (sameName(key, "frame")) {
        return FrameKey{FrameKeyKind::Mark, "frame", 0};
    }
    for (const FrameRow& row : kFrameRows) {
        if (const auto index = numberWithin(key, row.head, row.tail, row.last)) {
            return FrameKey{row.kind, row.name, *index};
        }
    }
    return std::nullopt;
}

std::optional<ConfigKey> configKeyOf(std::string_view key) {
    for (const std::string_view whole : kWholeKeys) {
        if (sameName(key, whole)) {
            return ConfigKey{ConfigKeyKind::Whole, whole, 0};
        }
    }
    if (sameName(key, document::kFontKey)) {
        return ConfigKey{ConfigKeyKind::Font, document::kFontKey, 0};
    }
    for (const std::string_view text : {document::kTitleKey, document::kHeadKey}) {
        if (sameName(key, text)) {
            return ConfigKey{ConfigKeyKind::Text, text, 0};
        }
    }
    for (const ConfigRow& row : kConfigRows) {
        if (const auto index = numberWithin(key, row.head, "", row.last)) {
            return ConfigKey{row.kind, row.name, *index};
        }
    }
    return std::nullopt;
}

std::optional<int> frameNumberOf(std::string_view section) {
    const auto number = numberWithin(section, "Frame", "", kLastIndex);
    return number && *number > 0 ? number : std::nullopt;
}

} // namespace zeltrona::zpf
