#pragma once

#include "document/records.h"
#include "tools/plays/places.h"

#include <cstdint>

namespace zeltrona::plays {

/// Turns places into board units on the drawing of a court, 1 to 9.
/// Shape: half courts stand with their basket at the top (1, 4, 7) or the bottom (2, 5, 8); on a whole court
/// (3, 6, 9)
///        the offence attacks the right basket. Each is the first one turned, so that right stays right.
class CourtMap {
public:
    explicit CourtMap(std::int16_t court);

    document::PointF at(Place place) const;
    /// A length on the floor in board units.
    double length(double metres) const { return metres * m_scale; }

private:
    enum class Lie { BasketTop, BasketBottom, Whole };
    Lie m_lie = Lie::BasketTop;
    double m_scale = 0;   ///< board units to the metre
    double m_endLine = 0; ///< inner edge of the end line behind the basket
};

} // namespace zeltrona::plays
