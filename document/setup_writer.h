#pragma once

#include "document/frame_keys.h"
#include "document/play_file.h"
#include "document/records.h"

#include <array>
#include <cstdint>
#include <string>

namespace zeltrona::document {

/// One row of the team window. `label`: bytes in the play's code page.
struct PlayerSetup {
    bool chosen = false;
    std::string label;
    std::int32_t skin = 0;
};

/// What the team window hands over for a new play.
struct TeamSetup {
    Color colorOff = 0xFF0000;
    Color colorDef = 0x0000FF;
    Color colorOffFont = 0xFFFFFF;
    Color colorDefFont = 0xFFFFFF;
    Color colorLine = 0;
    std::int32_t lineWidth = 1;
    bool bodies = false; ///< bodies instead of circles
    std::array<PlayerSetup, kSlotCount> off;
    std::array<PlayerSetup, kSlotCount> def;
};

/// Writes the keys of the team window as one replacement: colours, pen and font, then the chosen
/// players of each side.
/// Shape:  slots are packed: the chosen players get the slots 0, 1, 2 ..., and a place in the window
///         is not kept. All 24 slots are deleted first. A side without a player writes no keys.
/// Units:  the places are a first form, which the layout of the new play replaces.
WriteResult writeTeamConfig(PlayFile& play, const TeamSetup& setup);

/// What the court window hands over.
struct CourtSetup {
    std::int16_t court = 1;
    Color courtColor = 0xFFFFFF;
    bool texture = true;      ///< parquet instead of `courtColor`
    bool whiteLines = false;  ///< stored under the name `useTexture`
    bool titleEdited = false; ///< the title window has been opened, and has stored its texts
};

/// Writes the keys of the court window as one replacement, with an empty title and description unless the
/// title window has stored some: the two keys exist in every play.
WriteResult writeCourtConfig(PlayFile& play, const CourtSetup& setup);

} // namespace zeltrona::document
