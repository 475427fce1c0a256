#pragma once

#include "document/records.h"

#include <cstdint>
#include <string>

namespace zeltrona::document {

/// The variables that live for the whole run, owned by `main` and lent downwards.
/// Units: colours 0x00BBGGRR; frames from 1.
struct Session {
    // Start-up.
    std::int16_t langIndex = 0;    ///< language after folding: 0 English, 1 Serbian, 4 to 7 without strings
    std::int16_t stringBase = 100; ///< langIndex * 300 + 100
    bool newFileFlag = false;      ///< the main window opens a play that was just created
    bool hideCharsetMessage = false;
    std::string playFilePath; ///< full path in the file system's own encoding

    // The play.
    std::int16_t currFrame = 1;
    std::int16_t showCurves = 0; ///< -1 shows the recorded curve points

    // Section Config, filled by loadConfig.
    std::int16_t bodyType = 0; ///< 1 draws bodies, 0 circles
    Color colorOff = 0;
    Color colorDef = 0;
    Color colorOffFont = 0;
    Color colorDefFont = 0;
    Color colorLine = 0;
    std::int16_t lineWidth = 1; ///< as the file has it, never 0; painters take what is below 1 as 1
    std::int16_t court = 0;     ///< 1 to 9 have a picture
    Color courtColor = 0;
    std::int16_t courtTexture = 0;
    std::int16_t useTexture = 0;
    std::int16_t fontCharset = 238; ///< character set of the configured font; picks the texts' code page

    // Playback.
    bool fullScreenOpen = false;
    bool animLoop = false;

    /// A player is put together here before it is copied into an array. It has no other meaning.
    PlayerRec scratchPlayer;
};

/// Courts 3, 6 and 9 are whole courts; 1, 2, 4, 5, 7 and 8 halves; others have no picture and no family.
inline bool isBigCourt(std::int16_t court) {
    return court == 3 || court == 6 || court == 9;
}
inline bool isSmallCourt(std::int16_t court) {
    return court >= 1 && court <= 9 && !isBigCourt(court);
}

} // namespace zeltrona::document
