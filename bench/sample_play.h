#pragma once

#include <string>

namespace zeltrona::bench {

/// A play with a full `Config` and this many full frames: 12 players a side, balls, marks, lines, texts and
/// paths in each, about 4 kilobytes a frame. It has no lines ahead of its first section, so that other
/// readers take it too.
std::string samplePlay(int frames);

/// One such section.
std::string sampleFrame(int frame);

} // namespace zeltrona::bench
