#pragma once

#include <cstdint>
#include <optional>

namespace zeltrona::render {

/// The rectangle of a court in the sheet of its family, from the sheet's left edge; it goes to the board's
/// corner.
struct CourtBand {
    int row = 0;
    int width = 0;
    int height = 0;
    friend bool operator==(const CourtBand&, const CourtBand&) = default;
};

/// None for a court outside 1 to 9.
std::optional<CourtBand> courtBandOf(std::int16_t court);

} // namespace zeltrona::render
