#include "tools/art/court_drawing.h"

#include "tools/art/court_placing.h"
#include "tools/art/pixel_grid.h"

#include <algorithm>

namespace zeltrona::art {

QImage drawHalfCourt(const CourtPlan& plan, QSize size, BasketSide side) {
    const double top = endLineOfHalf(plan, size.height());
    const int middle = size.width() / 2;
    return drawMask(size, [&](Spot at) {
        const double y = side == BasketSide::Top ? at.y : size.height() - at.y;
        return isCourtLine(plan, at.x - middle, y - top);
    });
}

QImage drawWholeCourt(const CourtPlan& plan, QSize size) {
    const double left = endLineOfWhole(plan, size.width());
    const int middle = size.height() / 2;
    return drawMask(size, [&](Spot at) {
        const double along = std::min(at.x - left, left + plan.length - at.x);
        return isCourtLine(plan, at.y - middle, along);
    });
}

} // namespace zeltrona::art
