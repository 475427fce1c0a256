#pragma once

#include <QImage>

#include <array>

namespace zeltrona::render {

/// The fixed pictures that drawing reads, loaded once from the resources and lent by reference. Any of them
/// may be null: what needs it then is not drawn. Shape: Format_RGB32; masks are black where the shape is,
/// white elsewhere.
struct BoardArt {
    QImage picT, picTblack;       ///< 361 x 1980: six half courts, 330 rows each
    QImage picTbig, picTbigBlack; ///< 530 x 870: three whole courts, 290 rows each
    QImage picTparket;            ///< 360 x 329
    QImage picTbigParket;         ///< 530 x 290
    QImage pKrugMask;             ///< 26 x 26
    QImage pBall;                 ///< 26 x 26, on black
    std::array<QImage, 24>
        ilpskin; ///< 50 x 50; index = image number - 1; pose by pose, six steps of 15 degrees
    std::array<QImage, 6> ilptshirt;
    std::array<QImage, 24> ilpmask;
};

/// Loads from ":/art". A picture that is missing there stays null.
BoardArt loadBoardArt();

} // namespace zeltrona::render
