#pragma once

#include "output/page_layout.h"

#include <QImage>

#include <functional>

class QPainter;

namespace zeltrona::output {

/// Gives the finished board of a frame.
using FramePicture = std::function<QImage(std::int16_t frame)>;

/// Paints the list of a page, in order. One unit of `painter` is one point, the origin the left top corner of
/// the printable part. Printer and preview both paint through here.
void paintPage(QPainter& painter, const Page& page, const QImage& logo, const FramePicture& picture);

} // namespace zeltrona::output
