#include "tools/art/court_drawing.h"

#include "tools/art/pixel_grid.h"

#include <algorithm>
#include <cmath>

namespace zeltrona::art {

QImage drawHalfCourt(const CourtPlan& plan, QSize size, BasketSide side) {
    const double used = plan.length / 2 + plan.weight / 2.0 + plan.weight;
    const double top = std::floor((size.height() - used) / 2) + plan.weight;
    const double middle = size.width() / 2;
    return drawMask(size, [&](Spot at) {
        const double y = side == BasketSide::Top ? at.y : size.height() - at.y;
        return isCourtLine(plan, at.x - middle, y - top);
    });
}

QImage drawWholeCourt(const CourtPlan& plan, QSize size) {
    const double left = std::floor((size.width() - plan.length) / 2);
    const double middle = size.height() / 2;
    return drawMask(size, [&](Spot at) {
        const double along = std::min(at.x - left, left + plan.length - at.x);
        return isCourtLine(plan, at.y - middle, along);
    });
}

} // namespace zeltrona::art
