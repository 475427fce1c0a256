#pragma once

#include <QImage>

#include <array>

namespace zeltrona::render {

/// The fixed pictures that drawing reads, loaded once from the resources and lent by reference.
struct BoardArt {
    QImage picT, picTblack, picTbig, picTbigBlack, picTparket, picTbigParket;
    QImage pKrugMask;
    QImage pBall;
    std::array<QImage, 24> ilpskin; ///< 50 x 50; index = image number - 1
    std::array<QImage, 6> ilptshirt;
    std::array<QImage, 24> ilpmask;
};

/// Loads from ":/art".
BoardArt loadBoardArt();

} // namespace zeltrona::render
