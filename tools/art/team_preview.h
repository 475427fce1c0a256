#pragma once

#include <QImage>

namespace zeltrona::art {

/// The five 26 x 26 pictures from which the team dialog composes a small player on a piece of floor.
/// Shape: a region is white inside and black outside, so that it cuts its part out of a surface full of
/// colour; its mask
///        is the reverse, so that it empties that part of the base.
struct TeamPreview {
    QImage base;
    QImage skinRegion;
    QImage skinMask;
    QImage suitRegion;
    QImage suitMask;
};

TeamPreview drawTeamPreview();

} // namespace zeltrona::art
