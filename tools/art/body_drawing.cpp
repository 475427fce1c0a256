#include "tools/art/body_drawing.h"

#include <cmath>
#include <numbers>

namespace zeltrona::art {

namespace {

/// Outline thickness, and the bare ring between two colours.
constexpr double kOutline = 1.15;

/// Maps a pixel of the picture to the player's own axes.
class Turn {
public:
    Turn(double degrees, double scale, int size)
        : m_cos(std::cos(degrees * std::numbers::pi / 180.0)),
          m_sin(std::sin(degrees * std::numbers::pi / 180.0)),
          m_scale(scale),
          m_middle(size / 2.0) {}

    Spot toBody(Spot at) const {
        const double x = (at.x - m_middle) / m_scale;
        const double y = (at.y - m_middle) / m_scale;
        return {x * m_sin + y * m_cos, x * m_cos - y * m_sin};
    }

private:
    double m_cos;
    double m_sin;
    double m_scale;
    double m_middle;
};

bool isJersey(const BodyShape& shape, Spot at, double outline) {
    return distanceToJersey(shape, at) <= 0.0 && distanceToHead(shape, at) > outline;
}

bool isSkin(const BodyShape& shape, Spot at, double outline) {
    if (distanceToHead(shape, at) <= outline) {
        return distanceToHead(shape, at) <= 0.0;
    }
    return distanceToJersey(shape, at) > outline && distanceToLimbs(shape.arms, at) <= 0.0;
}

bool isBody(const BodyShape& shape, Spot at, double outline) {
    return distanceToJersey(shape, at) <= outline || distanceToHead(shape, at) <= outline
           || distanceToLimbs(shape.arms, at) <= outline;
}

} // namespace

BodyMasks drawBody(Pose pose, double degrees, double scale, int size) {
    const BodyShape shape = bodyShape(pose);
    const Turn turn(degrees, scale, size);
    const double outline = kOutline / scale;
    const auto draw = [&](auto inside) {
        return drawMask({size, size}, [&](Spot middle) {
            return coversHalf(middle, [&](Spot at) { return inside(shape, turn.toBody(at), outline); });
        });
    };
    BodyMasks masks{draw(isSkin), draw(isJersey), draw(isBody)};
    return masks;
}

QImage colourBody(const BodyMasks& masks, QRgb skin, QRgb jersey) {
    QImage picture(masks.mask.size(), QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            QRgb colour = isBlack(masks.mask, x, y) ? qRgb(0, 0, 0) : qRgba(0, 0, 0, 0);
            colour = isBlack(masks.skin, x, y) ? skin : colour;
            picture.setPixel(x, y, isBlack(masks.jersey, x, y) ? jersey : colour);
        }
    }
    return picture;
}

BodyMasks drawBodySheets() {
    constexpr int kImages = kPoses * kAngleSteps;
    BodyMasks sheets{whiteMask({kBodySize, kImages * kBodySize}),
                     whiteMask({kBodySize, kAngleSteps * kBodySize}),
                     whiteMask({kBodySize, kImages * kBodySize})};
    for (int k = 0; k < kImages; ++k) {
        const BodyMasks body = drawBody(static_cast<Pose>(k / kAngleSteps), 15.0 * (k % kAngleSteps + 1));
        placePart(sheets.skin, body.skin, 0, k * kBodySize);
        placePart(sheets.mask, body.mask, 0, k * kBodySize);
        if (k < kAngleSteps) {
            placePart(sheets.jersey, body.jersey, 0, k * kBodySize);
        }
    }
    return sheets;
}

} // namespace zeltrona::art
