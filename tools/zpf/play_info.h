#pragma once

#include "document/play_file.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace zeltrona::zpf {

/// How much stands in a frame.
struct FrameInfo {
    std::size_t offence = 0;
    std::size_t defence = 0;
    std::size_t balls = 0;
    std::size_t paths = 0;
    std::size_t lines = 0;
    std::size_t triangles = 0;
    std::size_t shadows = 0;
    std::size_t texts = 0;
    std::string note; ///< UTF-8
    friend bool operator==(const FrameInfo&, const FrameInfo&) = default;
};

/// What a play is about, as the program reads it. Texts are UTF-8.
struct PlayInfo {
    std::string title;
    std::vector<std::string> heading; ///< its lines
    std::int16_t court = 0;
    bool bodies = false;
    std::vector<std::string> offence; ///< labels of the first frame
    std::vector<std::string> defence;
    std::string font;
    std::int16_t charset = 238;
    std::vector<FrameInfo> frames;
};

/// Frames are loaded one after the other as the board does, so that one without players of a side counts
/// those that it goes on showing.
PlayInfo readPlayInfo(const document::PlayFile& play);

/// For people, several lines.
std::string infoAsText(std::string_view path, const PlayInfo& info);
/// One object, without a line end.
std::string infoAsJson(std::string_view path, const PlayInfo& info);

} // namespace zeltrona::zpf
