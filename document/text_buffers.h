#pragma once

#include "document/play_file.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace zeltrona::document {

/// The buffers of the play's string reads, in characters. Every read through one of them hands over a size
/// one smaller than the buffer and gives up one more character to the zero at its end, so at most two fewer
/// come back. A longer value is cut on reading only: the file keeps it whole.
enum class TextBuffer : std::size_t {
    Slot = 10,   ///< a player's place and label: 8 characters
    Text = 255,  ///< font, title and heading: 253 characters
    Note = 500,  ///< a frame's note: 498 characters
    List = 7000, ///< the comma lists of a frame: 6998 characters
};

/// The most characters that a read through the buffer gives.
constexpr std::size_t usableLength(TextBuffer buffer) {
    return static_cast<std::size_t>(buffer) - 2;
}

/// The value as the program reads it, cut to the buffer; `fallback` when section or key is absent.
inline std::string readText(const PlayFile& play, std::string_view section, std::string_view key,
                            TextBuffer buffer, std::string_view fallback = {}) {
    return play.readString(section, key, fallback, static_cast<std::size_t>(buffer) - 1);
}

} // namespace zeltrona::document
