#include "tools/plays/playbook.h"

namespace zeltrona::plays {

std::vector<PlayScript> playbook() {
    return {boxInbound(),       serbianStagger(), fastBreak(),   flex(),
            giveAndGo(),        horns(),          oneFourHigh(), pickAndRoll(),
            practiceStations(), pressBreak(),     shellDrill(),  sidelineInbound(),
            threeManWeave(),    zoneOffence()};
}

} // namespace zeltrona::plays
