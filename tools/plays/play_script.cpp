#include "tools/plays/play_script.h"

namespace zeltrona::plays {

std::string nameOf(const PlayScript& play, Who who) {
    const bool attacks = who.team == Team::Offence;
    const auto& names = attacks ? play.offenceNames : play.defenceNames;
    if (names.empty()) {
        return (attacks ? "" : "X") + std::to_string(who.number);
    }
    return names.at(static_cast<std::size_t>(who.number - 1));
}

} // namespace zeltrona::plays
