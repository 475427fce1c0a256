#pragma once

#include "tools/art/court_plan.h"

namespace zeltrona::art {

/// Where the markings of courts lie on their pictures, 360 x 330 for a half and 530 x 290 for a whole court;
/// for all who draw on a court or put players on it.

/// The court between side lines `width` pixels apart.
CourtPlan planOfWidth(const CourtFacts& facts, double width, int weight);

/// The plan of courts 1 to 9 on the board; 3, 6 and 9 are whole courts that lie along x.
CourtPlan planOfCourt(int court);

/// Row of the end line's inner edge on a picture `height` high, with the basket at the top: the middle line
/// and the end line keep equal margins.
double endLineOfHalf(const CourtPlan& plan, int height);

/// Column of the left end line's inner edge on a picture `width` wide.
double endLineOfWhole(const CourtPlan& plan, int width);

} // namespace zeltrona::art
