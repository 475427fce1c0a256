#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QSize>

#include <vector>

namespace zeltrona::art {

/// One shape of a picture: filled when `width` is 0, else a line of that thickness with round ends and joins.
struct Shape {
    QPainterPath path;
    QColor colour;
    double width = 0.0;
};

/// Shapes from back to front on a grid of `size` units. The one description serves the scalable file and the
/// pixels.
struct VectorPicture {
    QSize size;
    std::vector<Shape> shapes;
};

/// The picture as an SVG file, without fonts, styles or scripts.
QByteArray writeSvg(const VectorPicture& picture);

/// The picture at `pixels`, stretched to fill it; transparent where nothing lies.
/// Shape:  each pixel is the mean of a grid of hard-edged samples, so the result does not depend on how a
/// machine's
///         painter smooths.
QImage drawPixels(const VectorPicture& picture, QSize pixels);

/// The same shapes moved by (dx, dy) and enlarged by `factor`, to be put into another picture.
std::vector<Shape> placed(const std::vector<Shape>& shapes, double factor, double dx, double dy);

/// The same shapes in one colour.
std::vector<Shape> inColour(std::vector<Shape> shapes, const QColor& colour);

} // namespace zeltrona::art
