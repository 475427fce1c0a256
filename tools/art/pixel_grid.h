#pragma once

#include <QImage>
#include <QSize>

#include <cmath>

namespace zeltrona::art {

/// A place on a picture or in a drawing of it. Units: pixels, y down; the middle of the top left pixel is
/// (0.5, 0.5).
struct Spot {
    double x = 0.0;
    double y = 0.0;
    friend bool operator==(const Spot&, const Spot&) = default;
};

inline Spot operator+(Spot a, Spot b) {
    return {a.x + b.x, a.y + b.y};
}
inline Spot operator-(Spot a, Spot b) {
    return {a.x - b.x, a.y - b.y};
}
inline Spot operator*(Spot a, double factor) {
    return {a.x * factor, a.y * factor};
}
inline double length(Spot a) {
    return std::hypot(a.x, a.y);
}

/// An all white picture of one bit a pixel; index 0 is black, 1 white.
QImage whiteMask(QSize size);

/// A mask whose pixel is black where `inside` holds at its middle. One question a pixel and no smoothing:
/// what is symmetric in the geometry is symmetric in the picture.
template<class Inside> QImage drawMask(QSize size, Inside inside) {
    QImage mask = whiteMask(size);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            if (inside(Spot{x + 0.5, y + 0.5})) {
                mask.setPixel(x, y, 0);
            }
        }
    }
    return mask;
}

/// True when at least half of the pixel around `middle` lies inside, judged on an 8 by 8 grid. For small
/// round shapes at odd angles, where the middle alone lets an edge stutter.
template<class Inside> bool coversHalf(Spot middle, Inside inside) {
    constexpr int kSteps = 8;
    int hits = 0;
    for (int j = 0; j < kSteps; ++j) {
        for (int i = 0; i < kSteps; ++i) {
            const Spot at{middle.x - 0.5 + (i + 0.5) / kSteps, middle.y - 0.5 + (j + 0.5) / kSteps};
            hits += inside(at) ? 1 : 0;
        }
    }
    return hits * 2 >= kSteps * kSteps;
}

/// Black and white swapped.
QImage invertedMask(const QImage& mask);

/// Opaque 24-bit copy, black where the mask is black.
QImage maskAsRgb(const QImage& mask);

/// True when the pixel is black; false outside the picture.
bool isBlack(const QImage& picture, int x, int y);

/// Copies `part` into `sheet` with its top left corner at (x, y), pixel by pixel; both of one format.
void placePart(QImage& sheet, const QImage& part, int x, int y);

} // namespace zeltrona::art
