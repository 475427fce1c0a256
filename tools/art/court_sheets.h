#pragma once

#include <QImage>

namespace zeltrona::art {

/// The board's sheets. Small courts are 360 x 330 in bands of a 361 pixels wide sheet, in the order 1, 2, 4,
/// 5, 7, 8; big ones 530 x 290 in the order 3, 6, 9. Black lines on white, one bit a pixel.
QImage drawSmallCourtSheet();
QImage drawBigCourtSheet();

/// The nine previews of the court dialog, one under the other, 160 x 1755: half courts 146 high, whole courts
/// 293. Shape: the dialog shows a whole court squeezed to half its height, so each of its rows stands here
/// twice and the
///        shown preview has the court's true proportions.
QImage drawPreviewStrip();

} // namespace zeltrona::art
