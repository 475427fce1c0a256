#pragma once

#include "tools/art/court_plan.h"

#include <QImage>

namespace zeltrona::art {

enum class BasketSide { Top, Bottom };

/// The lines of a half court as a mask, centred across and along its picture: the middle of the court is the
/// picture's middle column, the middle line and the end line keep equal margins. A plan of weight 2 asks for
/// an even width.
QImage drawHalfCourt(const CourtPlan& plan, QSize size, BasketSide side);

/// The lines of a whole court, lying along x, centred.
QImage drawWholeCourt(const CourtPlan& plan, QSize size);

} // namespace zeltrona::art
