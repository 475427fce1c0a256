#include "tools/art/tool_icons.h"

#include "tools/art/ink.h"
#include "tools/art/path_parts.h"

#include <array>

namespace zeltrona::art {

namespace {

constexpr double kStroke = 2.0;

using Sign = std::vector<Shape> (*)(const QColor&);

std::vector<Shape> cutSign(const QColor& ink) {
    return {{polyline({{3.0, 17.0}, {12.5, 7.5}}), ink, kStroke},
            {arrowHead({3.0, 17.0}, {17.8, 2.2}, 8.0, 4.4), ink, 0.0}};
}

std::vector<Shape> passSign(const QColor& ink) {
    return {{polyline({{2.9, 17.1}, {4.6, 15.4}}), ink, kStroke},
            {polyline({{7.6, 12.4}, {9.3, 10.7}}), ink, kStroke},
            {arrowHead({3.0, 17.0}, {17.8, 2.2}, 8.0, 4.4), ink, 0.0}};
}

std::vector<Shape> dribbleSign(const QColor& ink) {
    // Half circles on alternating sides of the diagonal, as the line on the board has them.
    QPainterPath wave;
    const std::array<QPointF, 4> knots{QPointF{2.6, 17.4}, {6.0, 14.0}, {9.4, 10.6}, {12.8, 7.2}};
    for (std::size_t i = 0; i + 1 < knots.size(); ++i) {
        const QPointF middle = (knots[i] + knots[i + 1]) / 2;
        wave.addPath(arc(middle, 2.404, 225.0, i % 2 == 0 ? -180.0 : 180.0));
    }
    return {{wave, ink, 1.8}, {arrowHead({3.0, 17.0}, {17.8, 2.2}, 7.2, 4.2), ink, 0.0}};
}

std::vector<Shape> screenSign(const QColor& ink) {
    return {{polyline({{3.0, 17.0}, {13.5, 6.5}}), ink, kStroke},
            {polyline({{9.2, 2.8}, {17.2, 10.8}}), ink, 2.6}};
}

std::vector<Shape> doubleSign(const QColor& ink) {
    return {{polyline({{2.2, 14.2}, {9.6, 6.8}}), ink, kStroke},
            {polyline({{5.8, 17.8}, {13.2, 10.4}}), ink, kStroke},
            {arrowHead({4.0, 16.0}, {17.8, 2.2}, 7.6, 6.8), ink, 0.0}};
}

std::vector<Shape> ballSign(const QColor& ink) {
    return {
        {circle({10.0, 10.0}, 7.0), ink, kStroke},
        {together({polyline({{3.0, 10.0}, {17.0, 10.0}}), polyline({{10.0, 3.0}, {10.0, 17.0}})}), ink, 1.2},
        {arc({-2.4, 10.0}, 7.8, -36.0, 72.0), ink, 1.2},
        {arc({22.4, 10.0}, 7.8, 144.0, 72.0), ink, 1.2}};
}

std::vector<Shape> triangleSign(const QColor& ink) {
    return {{polygon({{10.0, 3.4}, {17.0, 16.0}, {3.0, 16.0}}), ink, kStroke}};
}

std::vector<Shape> textSign(const QColor& ink) {
    return {{together({polyline({{4.0, 6.0}, {4.0, 4.0}, {16.0, 4.0}, {16.0, 6.0}}),
                       polyline({{10.0, 4.0}, {10.0, 16.0}}), polyline({{7.0, 16.0}, {13.0, 16.0}})}),
             ink, kStroke}};
}

std::vector<Shape> shadowSign(const QColor& ink) {
    QPainterPath ellipse;
    ellipse.addEllipse(QPointF{10.0, 10.0}, 8.0, 5.5);
    return {{ellipse, ink, 0.0}};
}

std::vector<Shape> deleteSign(const QColor& ink) {
    return {
        {together({polyline({{3.0, 5.0}, {17.0, 5.0}}), polyline({{8.0, 3.0}, {12.0, 3.0}}),
                   polyline({{5.0, 5.0}, {6.0, 17.0}, {14.0, 17.0}, {15.0, 5.0}})}),
         ink, kStroke},
        {together({polyline({{8.4, 8.4}, {8.4, 13.8}}), polyline({{11.6, 8.4}, {11.6, 13.8}})}), ink, 1.4}};
}

std::vector<Shape> colourSign(const QColor& ink) {
    QPainterPath drop(QPointF{10.0, 2.8});
    drop.cubicTo({12.0, 6.2}, {15.4, 9.2}, {15.4, 12.2});
    drop.cubicTo({15.4, 15.2}, {13.0, 17.2}, {10.0, 17.2});
    drop.cubicTo({7.0, 17.2}, {4.6, 15.2}, {4.6, 12.2});
    drop.cubicTo({4.6, 9.2}, {8.0, 6.2}, {10.0, 2.8});
    drop.closeSubpath();
    QPainterPath level(QPointF{5.0, 11.6});
    level.lineTo(15.0, 11.6);
    level.cubicTo({15.4, 15.2}, {13.0, 17.2}, {10.0, 17.2});
    level.cubicTo({7.0, 17.2}, {4.6, 15.2}, {5.0, 11.6});
    return {{drop, ink, kStroke}, {level, ink, 0.0}};
}

constexpr std::array<Sign, kTools> kSigns{cutSign,    passSign,   dribbleSign,  screenSign,
                                          doubleSign, ballSign,   triangleSign, textSign,
                                          shadowSign, deleteSign, colourSign};

/// The accent with a dark upper left and a bright lower right edge: pushed in, also without its colour.
std::vector<Shape> pressedGround() {
    const double size = kToolSize;
    const QPainterPath face = polygon({{0.0, 0.0}, {size, 0.0}, {size, size}, {0.0, size}});
    const QPainterPath shade =
        polygon({{0.0, 0.0}, {size, 0.0}, {size, 1.0}, {1.0, 1.0}, {1.0, size}, {0.0, size}});
    const QPainterPath light = polygon(
        {{size, size}, {size, 0.0}, {size - 1, 1.0}, {size - 1, size - 1}, {1.0, size - 1}, {0.0, size}});
    return {{face, kAccent, 0.0}, {light, kAccent.lighter(135), 0.0}, {shade, kAccentDark, 0.0}};
}

} // namespace

std::vector<Shape> toolSign(int tool, const QColor& ink) {
    return kSigns.at(static_cast<std::size_t>(tool))(ink);
}

QImage drawToolStrip(const QColor& ink, int scale) {
    VectorPicture strip{{2 * kTools * kToolSize, kToolSize}, {}};
    const auto add = [&](const std::vector<Shape>& shapes, double x, double y) {
        const std::vector<Shape> moved = placed(shapes, 1.0, x, y);
        strip.shapes.insert(strip.shapes.end(), moved.begin(), moved.end());
    };
    for (int tool = 0; tool < kTools; ++tool) {
        const int x = 2 * tool * kToolSize;
        add(toolSign(tool, ink), x, 0.0);
        add(pressedGround(), x + kToolSize, 0.0);
        add(toolSign(tool, ink), x + kToolSize + 1.0, 1.0);
    }
    return drawPixels(strip, strip.size * scale);
}

} // namespace zeltrona::art
