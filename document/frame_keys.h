#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zeltrona::document {

/// Names of sections and keys of the play, in the spelling that is written. Reads do not care about the case.

inline constexpr std::string_view kConfigSection = "Config";
inline constexpr std::string_view kFontKey = "font";
inline constexpr std::string_view kTitleKey = "txtTitle";
inline constexpr std::string_view kHeadKey = "txtHead";

/// Slots of a side, 0 to 11.
inline constexpr int kSlotCount = 12;
/// The last owner whose path is read.
inline constexpr int kLastPlayerPath = 11;
inline constexpr int kLastBallPath = 100;

/// "Frame3"
inline std::string frameSection(std::int16_t frame) {
    return "Frame" + std::to_string(frame);
}
/// "Notes3", a key of the section Config.
inline std::string noteKey(std::int16_t frame) {
    return "Notes" + std::to_string(frame);
}
/// "Ball0"
inline std::string indexedKey(std::string_view name, std::size_t index) {
    return std::string(name) + std::to_string(index);
}
/// "off0curve"
inline std::string curveKey(std::string_view name, std::size_t owner) {
    return indexedKey(name, owner) + "curve";
}

} // namespace zeltrona::document
