#include "tools/art/round_marks.h"

#include "tools/art/pixel_grid.h"
#include "tools/art/round_lines.h"

#include <algorithm>
#include <cmath>

namespace zeltrona::art {

namespace {

constexpr QSize kCell{26, 26};
/// Discs on the board are even: this one lies between four pixels.
constexpr Spot kMiddle{13.0, 13.0};
constexpr double kBallRadius = 7.0;

/// An upright, a level one and a bow at each side, each one pixel thick; the straight ones pass on the shaded
/// side.
bool isSeam(Spot from) {
    const bool straight = std::abs(from.x - 0.5) < 0.5 || std::abs(from.y - 0.5) < 0.5;
    return straight || isThinCircle(std::abs(from.x) - 10.5, from.y, 6.5);
}

QRgb ballColourAt(Spot from) {
    const double rim = length(from);
    if (rim > kBallRadius - 0.8) {
        return qRgb(52, 20, 6);
    }
    const double light = std::clamp(1.06 - 0.035 * length(from - Spot{-2.6, -2.6}), 0.76, 1.06);
    const double tone = isSeam(from) ? 0.7 : 1.0;
    const auto channel = [&](double value) {
        return std::clamp(static_cast<int>(value * light * tone), 0, 255);
    };
    return qRgb(channel(246), channel(112), channel(24));
}

} // namespace

QImage drawPlayerRing() {
    return drawMask(kCell, [](Spot at) {
        const Spot from = at - kMiddle;
        return isRing(from.x, from.y, 10.0, 2.0);
    });
}

QImage drawBall() {
    QImage ball(kCell, QImage::Format_RGB888);
    ball.fill(Qt::black);
    for (int y = 0; y < ball.height(); ++y) {
        for (int x = 0; x < ball.width(); ++x) {
            const Spot from = Spot{x + 0.5, y + 0.5} - kMiddle;
            if (length(from) <= kBallRadius) {
                ball.setPixel(x, y, ballColourAt(from));
            }
        }
    }
    return ball;
}

} // namespace zeltrona::art
