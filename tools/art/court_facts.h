#pragma once

#include <array>
#include <vector>

namespace zeltrona::art {

/// A mark on the outside of the lane, from `from` to `to` away from the end line; a thin line when they are
/// one line width apart, a filled block when they are more.
struct LaneMark {
    double from = 0.0;
    double to = 0.0;
};

/// The measures of one set of markings, in the unit of its rule book (metres or feet).
/// Lengths along the court count from the inner edge of the end line, across it from the middle; widths and
/// radii reach to the outer edge of their line. A measure of 0 means that the set has no such line.
struct CourtFacts {
    double length = 0.0;
    double width = 0.0;
    double basket = 0.0; ///< middle of the ring
    double ring = 0.0;   ///< diameter inside the ring
    double board = 0.0;  ///< front face of the board
    double boardWidth = 0.0;
    double laneLength = 0.0;        ///< to the outer edge of the free-throw line
    double laneWidth = 0.0;         ///< at the free-throw line
    double laneWidthAtEnd = 0.0;    ///< at the end line
    double innerLaneWidth = 0.0;    ///< second pair of lines inside the lane
    double circle = 0.0;            ///< radius at the free-throw line and in the middle
    double innerCentreCircle = 0.0; ///< second circle in the middle
    bool dashedInnerHalf = false;   ///< the half of the free-throw circle inside the lane
    double threePoint = 0.0;        ///< radius of the three-point arc
    double threePointGap = 0.0;     ///< from the side line to its straight part
    double underBasket = 0.0;       ///< radius of the half circle under the basket
    double sideMark = 0.0;          ///< short mark at the side line; from the end line
    double sideMarkLength = 0.0;    ///< positive into the court, negative out of it
    double laneMarkLength = 0.0;    ///< how far a lane mark sticks out
    std::vector<LaneMark> laneMarks;
};

/// Today's international markings (0), the former international ones (1), the North American professional
/// ones (2). Courts 1 to 3 use the first, 4 to 6 the second, 7 to 9 the third.
const std::array<CourtFacts, 3>& courtFacts();

} // namespace zeltrona::art
