#pragma once

#include "output/frame_walk.h"
#include "output/page_layout.h"

#include <QFont>
#include <QImage>
#include <QSizeF>

namespace zeltrona::output {

/// Printable part of the printer's page, in points.
QSizeF printerPageSize();

/// One page of the play (from 1) as a picture, painted from the very list that the printer gets.
/// `pixelsPerPoint` 2 is one and a half times the size on the screen. A page that the play does not have is a
/// white sheet.
QImage makePrintPreviewPage(FrameWalk& walk, PrintMode mode, std::int16_t page, double pixelsPerPoint,
                            const QFont& windowFont, const QImage& logo);

} // namespace zeltrona::output
