#pragma once

#include "tools/plays/play_script.h"

#include <vector>

namespace zeltrona::plays {

/// The sample plays, in the order of their files' names.
std::vector<PlayScript> playbook();

// One file each in plays/.
PlayScript boxInbound();
PlayScript fastBreak();
PlayScript flex();
PlayScript giveAndGo();
PlayScript horns();
PlayScript oneFourHigh();
PlayScript pickAndRoll();
PlayScript practiceStations();
PlayScript pressBreak();
PlayScript serbianStagger();
PlayScript shellDrill();
PlayScript sidelineInbound();
PlayScript threeManWeave();
PlayScript zoneOffence();

} // namespace zeltrona::plays
