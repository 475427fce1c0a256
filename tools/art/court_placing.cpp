#include "tools/art/court_placing.h"

#include <cmath>

namespace zeltrona::art {

namespace {

/// The widths between the side lines, in pixels; the scale follows, so that both rule books fill the picture
/// alike.
constexpr double kHalfCourtWidth = 336.0;
constexpr double kWholeCourtWidth = 276.0;
constexpr double kWholeCourtWidthNorthAmerican = 272.0;

double wholeCourtWidth(const CourtFacts& facts) {
    const bool metric = facts.length < 50.0;
    return metric ? kWholeCourtWidth : kWholeCourtWidthNorthAmerican;
}

} // namespace

CourtPlan planOfWidth(const CourtFacts& facts, double width, int weight) {
    return planCourt(facts, width / facts.width, weight);
}

CourtPlan planOfCourt(int court) {
    const CourtFacts& facts = courtFacts().at(static_cast<std::size_t>((court - 1) / 3));
    return planOfWidth(facts, court % 3 == 0 ? wholeCourtWidth(facts) : kHalfCourtWidth, 2);
}

double endLineOfHalf(const CourtPlan& plan, int height) {
    const double used = plan.length / 2 + plan.weight / 2.0 + plan.weight;
    return std::floor((height - used) / 2) + plan.weight;
}

double endLineOfWhole(const CourtPlan& plan, int width) {
    return std::floor((width - plan.length) / 2);
}

} // namespace zeltrona::art
