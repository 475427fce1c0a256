#include "tools/art/court_plan.h"

#include <cmath>

namespace zeltrona::art {

namespace {

int roundToParityOf(int weight, double value) {
    const int down = static_cast<int>(std::floor(value));
    const int base = (down - weight) % 2 == 0 ? down : down - 1;
    return value - base < 1.0 ? base : base + 2;
}

void planLane(CourtPlan& plan, const CourtFacts& facts, double scale) {
    plan.laneLength = std::round(facts.laneLength * scale);
    plan.laneHalf = std::round(facts.laneWidth / 2 * scale);
    plan.laneHalfAtEnd = std::round(facts.laneWidthAtEnd / 2 * scale);
    plan.innerLaneHalf = std::round(facts.innerLaneWidth / 2 * scale);
    if (plan.weight < 2) {
        return;
    }
    plan.laneMarkLength = std::max(2.0, std::round(facts.laneMarkLength * scale));
    for (const LaneMark& mark : facts.laneMarks) {
        const double from = std::round(mark.from * scale);
        plan.laneMarks.push_back({from, std::max(from + plan.weight, std::round(mark.to * scale))});
    }
}

void planThreePoint(CourtPlan& plan, const CourtFacts& facts, double scale) {
    plan.threePoint = facts.threePoint * scale;
    plan.threePointHalf = std::round((facts.width / 2 - facts.threePointGap) * scale);
    const double reach = plan.threePoint * plan.threePoint - plan.threePointHalf * plan.threePointHalf;
    plan.threePointEnd = plan.basket + std::sqrt(std::max(0.0, reach));
}

} // namespace

CourtPlan planCourt(const CourtFacts& facts, double scale, int weight) {
    CourtPlan plan;
    plan.weight = weight;
    plan.length = roundToParityOf(weight, facts.length * scale);
    plan.halfWidth = std::round(facts.width / 2 * scale);
    plan.basket = std::round(facts.basket * scale);
    plan.ring = facts.ring / 2 * scale - 0.5;
    plan.board = std::round(facts.board * scale);
    plan.boardHalf = std::round(facts.boardWidth / 2 * scale);
    plan.circle = facts.circle * scale;
    plan.innerCentreCircle = facts.innerCentreCircle * scale;
    plan.dashedInnerHalf = facts.dashedInnerHalf;
    plan.underBasket = facts.underBasket * scale;
    plan.sideMark = std::round(facts.sideMark * scale);
    plan.sideMarkLength =
        std::copysign(std::ceil(std::abs(facts.sideMarkLength) * scale), facts.sideMarkLength);
    planLane(plan, facts, scale);
    planThreePoint(plan, facts, scale);
    return plan;
}

} // namespace zeltrona::art
