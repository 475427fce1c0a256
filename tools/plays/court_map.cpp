#include "tools/plays/court_map.h"

#include "document/session.h"
#include "tools/art/court_placing.h"

namespace zeltrona::plays {

namespace {

constexpr double kHalfWidth = 360;
constexpr double kHalfHeight = 330;
constexpr double kWholeWidth = 530;
constexpr double kWholeHeight = 290;
constexpr double kMetresToFoot = 0.3048;

/// Width of the court in metres.
double widthOf(std::int16_t court) {
    const double width = art::courtFacts().at(static_cast<std::size_t>((court - 1) / 3)).width;
    return court >= 7 ? width * kMetresToFoot : width;
}

} // namespace

CourtMap::CourtMap(std::int16_t court) {
    const art::CourtPlan plan = art::planOfCourt(court);
    m_scale = 2 * plan.halfWidth / widthOf(court);
    if (document::isBigCourt(court)) {
        m_lie = Lie::Whole;
        m_endLine = art::endLineOfWhole(plan, static_cast<int>(kWholeWidth));
    } else {
        m_lie = court % 3 == 1 ? Lie::BasketTop : Lie::BasketBottom;
        m_endLine = art::endLineOfHalf(plan, static_cast<int>(kHalfHeight));
    }
}

document::PointF CourtMap::at(Place place) const {
    const double across = place.across * m_scale;
    const double along = m_endLine + place.along * m_scale;
    const auto point = [](double x, double y) {
        return document::PointF{static_cast<float>(x), static_cast<float>(y)};
    };
    switch (m_lie) {
    case Lie::BasketTop:
        return point(kHalfWidth / 2 + across, along);
    case Lie::BasketBottom:
        return point(kHalfWidth / 2 - across, kHalfHeight - along);
    case Lie::Whole:
        break;
    }
    return point(kWholeWidth - along, kWholeHeight / 2 + across);
}

} // namespace zeltrona::plays
