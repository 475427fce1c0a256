#pragma once

#include "tools/zpf/check/check_desk.h"

#include <array>
#include <cstdint>

namespace zeltrona::zpf {

/// Slots of each side that some frame uses.
struct UsedSlots {
    std::array<bool, 12> off{};
    std::array<bool, 12> def{};
};

/// Checks the section Config of a play with so many frames that can be reached.
void checkConfig(const CheckDesk& desk, std::int16_t frames, const UsedSlots& used);

} // namespace zeltrona::zpf
