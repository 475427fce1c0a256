#pragma once

#include "tools/art/court_facts.h"

namespace zeltrona::art {

/// One set of markings laid onto the pixel grid.
/// Units:  pixels; lengths along the court count from the inner edge of the end line, across it from its
/// middle. Shape:  what is a straight line in the rule book ends on whole pixels, the middles of circles too;
/// radii keep their
///         fractions, since a symmetric middle keeps a circle round at any radius.
struct CourtPlan {
    int weight = 2;         ///< thickness of a line
    double length = 0.0;    ///< between the inner edges of the end lines
    double halfWidth = 0.0; ///< from the middle to the inner edge of a side line
    double basket = 0.0;    ///< middle of the ring
    double ring = 0.0;      ///< radius to the middle of the ring's one pixel line
    double board = 0.0;     ///< front face
    double boardHalf = 0.0;
    double laneLength = 0.0;
    double laneHalf = 0.0;      ///< at the free-throw line
    double laneHalfAtEnd = 0.0; ///< at the end line
    double innerLaneHalf = 0.0; ///< 0 for none, as for all that follows
    double circle = 0.0;
    double innerCentreCircle = 0.0;
    bool dashedInnerHalf = false;
    double threePoint = 0.0;
    double threePointHalf = 0.0; ///< outer edge of the straight part
    double threePointEnd = 0.0;  ///< where the straight part meets the arc
    double underBasket = 0.0;
    double sideMark = 0.0;
    double sideMarkLength = 0.0;
    double laneMarkLength = 0.0;
    std::vector<LaneMark> laneMarks;
};

/// `scale` is in pixels to the unit of the facts, `weight` 1 or 2. The court's length gets the parity of
/// `weight`, so that the middle line lies exactly in the middle. At weight 1 the lane marks are left out:
/// they would be specks.
CourtPlan planCourt(const CourtFacts& facts, double scale, int weight);

/// True when the spot `across` from the middle (either sign) and `along` from the end line lies on a line.
/// Covers the half of the court that begins at that end line, up to and with the middle line.
bool isCourtLine(const CourtPlan& plan, double across, double along);

} // namespace zeltrona::art
