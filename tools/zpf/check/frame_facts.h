#pragma once

#include "document/frame_keys.h"
#include "document/frame_records.h"
#include "document/play_file.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zeltrona::zpf {

/// The slots of one side of a frame.
struct SideFacts {
    std::string_view side;                         ///< "off" or "def"
    std::array<bool, document::kSlotCount> read{}; ///< slots that give a player
    std::size_t players = 0;
};

/// What the program's readers make of a frame that is loaded on its own.
struct FrameFacts {
    document::FrameRecords records;
    SideFacts off{"off", {}, 0};
    SideFacts def{"def", {}, 0};

    const SideFacts& side(std::string_view name) const { return name == "off" ? off : def; }
    /// Length of a list as it is read: 0 when its first key is missing or empty.
    std::size_t lengthOf(std::string_view list) const;

    std::array<std::size_t, 5> lengths{}; ///< of the lists, in the order of `kListNames`
};

inline constexpr std::array<std::string_view, 5> kListNames{"Ball", "Triangle", "Line", "Shadow", "txtPic"};

FrameFacts readFrameFacts(const document::PlayFile& play, std::int16_t frame);

} // namespace zeltrona::zpf
