#pragma once

#include <optional>
#include <string_view>

namespace zeltrona::zpf {

/// The kinds of key that the readers of a frame ask for.
enum class FrameKeyKind {
    Mark,  ///< frame
    Slot,  ///< off3, def3
    Angle, ///< angleoff3
    Body,  ///< bodyoff3
    List,  ///< Ball3, Triangle3, Shadow3, Line3, txtPic3
    Curve  ///< off3curve, Ball3curve
};

struct FrameKey {
    FrameKeyKind kind = FrameKeyKind::Mark;
    std::string_view name; ///< "off", "def" or the list's name, as the writers spell it
    int index = 0;
};

/// What a key of a frame's section is; nothing for one that no reader asks for, be it only for a leading zero
/// in its index or an index out of range.
std::optional<FrameKey> frameKeyOf(std::string_view key);

/// The kinds of key of the section Config.
enum class ConfigKeyKind {
    Whole, ///< a whole number: colours, court, switches, line width
    Font,
    Text, ///< title and heading
    Note,
    Label,
    Skin
};

struct ConfigKey {
    ConfigKeyKind kind = ConfigKeyKind::Whole;
    std::string_view name; ///< the whole key, "Notes", "off" or "def"
    int index = 0;         ///< slot of a label or skin, frame of a note
};

std::optional<ConfigKey> configKeyOf(std::string_view key);

/// The number of a section "Frame12"; nothing for any other name.
std::optional<int> frameNumberOf(std::string_view section);

} // namespace zeltrona::zpf
