#include "tools/art/vector_picture.h"

#include <QPainter>
#include <QPainterPathStroker>
#include <QTransform>

#include <array>

namespace zeltrona::art {

namespace {

/// At most three digits after the point, without trailing zeros.
QByteArray number(double value) {
    QByteArray text = QByteArray::number(value, 'f', 3);
    while (text.endsWith('0')) {
        text.chop(1);
    }
    if (text.endsWith('.')) {
        text.chop(1);
    }
    return text == "-0" ? QByteArray("0") : text;
}

QByteArray place(const QPainterPath::Element& element) {
    return number(element.x) + ' ' + number(element.y);
}

QByteArray pathData(const QPainterPath& path) {
    QByteArray data;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo()) {
            data += 'M' + place(element);
        } else if (element.isLineTo()) {
            data += 'L' + place(element);
        } else {
            data += 'C' + place(element) + ' ' + place(path.elementAt(i + 1)) + ' '
                    + place(path.elementAt(i + 2));
            i += 2;
        }
    }
    return data;
}

QByteArray writeShape(const Shape& shape) {
    const QByteArray colour = shape.colour.name().toLatin1();
    const QByteArray start = "  <path d=\"" + pathData(shape.path) + "\" ";
    if (shape.width <= 0.0) {
        const QByteArray rule = shape.path.fillRule() == Qt::OddEvenFill ? "evenodd" : "nonzero";
        return start + "fill=\"" + colour + "\" stroke=\"none\" fill-rule=\"" + rule + "\"/>\n";
    }
    return start + "fill=\"none\" stroke=\"" + colour + "\" stroke-width=\"" + number(shape.width)
           + "\" stroke-linecap=\"round\" stroke-linejoin=\"round\"/>\n";
}

QPainterPath outlineOf(const Shape& shape) {
    if (shape.width <= 0.0) {
        return shape.path;
    }
    QPainterPathStroker stroker;
    stroker.setWidth(shape.width);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    stroker.setCurveThreshold(0.02);
    return stroker.createStroke(shape.path);
}

QRgb meanOf(const QImage& samples, int left, int top, int side) {
    std::array<int, 4> sums{};
    for (int y = top; y < top + side; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(samples.constScanLine(y));
        for (int x = left; x < left + side; ++x) {
            const int alpha = qAlpha(line[x]) == 0 ? 0 : 1;
            sums[0] += alpha;
            sums[1] += alpha * qRed(line[x]);
            sums[2] += alpha * qGreen(line[x]);
            sums[3] += alpha * qBlue(line[x]);
        }
    }
    if (sums[0] == 0) {
        return qRgba(0, 0, 0, 0);
    }
    const auto mean = [&](int sum) { return (sum + sums[0] / 2) / sums[0]; };
    return qRgba(mean(sums[1]), mean(sums[2]), mean(sums[3]),
                 (sums[0] * 255 + side * side / 2) / (side * side));
}

} // namespace

QByteArray writeSvg(const VectorPicture& picture) {
    const QByteArray width = QByteArray::number(picture.size.width());
    const QByteArray height = QByteArray::number(picture.size.height());
    QByteArray svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "\" height=\"" + height
                     + "\" viewBox=\"0 0 " + width + ' ' + height + "\">\n";
    for (const Shape& shape : picture.shapes) {
        svg += writeShape(shape);
    }
    return svg + "</svg>\n";
}

QImage drawPixels(const VectorPicture& picture, QSize pixels) {
    const int side = pixels.width() * pixels.height() > 300 * 300 ? 4 : 8;
    QImage samples(pixels * side, QImage::Format_ARGB32_Premultiplied);
    samples.fill(Qt::transparent);
    QPainter painter(&samples);
    painter.setPen(Qt::NoPen);
    painter.scale(static_cast<double>(samples.width()) / picture.size.width(),
                  static_cast<double>(samples.height()) / picture.size.height());
    for (const Shape& shape : picture.shapes) {
        painter.fillPath(outlineOf(shape), shape.colour);
    }
    painter.end();
    QImage result(pixels, QImage::Format_ARGB32);
    for (int y = 0; y < pixels.height(); ++y) {
        for (int x = 0; x < pixels.width(); ++x) {
            result.setPixel(x, y, meanOf(samples, x * side, y * side, side));
        }
    }
    return result;
}

std::vector<Shape> placed(const std::vector<Shape>& shapes, double factor, double dx, double dy) {
    const QTransform transform = QTransform::fromTranslate(dx, dy).scale(factor, factor);
    std::vector<Shape> moved;
    moved.reserve(shapes.size());
    for (const Shape& shape : shapes) {
        moved.push_back({transform.map(shape.path), shape.colour, shape.width * factor});
    }
    return moved;
}

std::vector<Shape> inColour(std::vector<Shape> shapes, const QColor& colour) {
    for (Shape& shape : shapes) {
        shape.colour = colour;
    }
    return shapes;
}

} // namespace zeltrona::art
