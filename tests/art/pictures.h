#pragma once

#include <QImage>
#include <QPoint>
#include <QString>

#include <functional>
#include <vector>

namespace zeltrona::art {

/// The committed file, as the programs read it.
QImage committed(const QString& name);

bool black(const QImage& picture, int x, int y);
bool white(const QImage& picture, int x, int y);

/// The part of a sheet at (0, y).
QImage band(const QImage& sheet, int y, int width, int height);

/// All pixels that are black.
std::vector<QPoint> blackPixels(const QImage& picture);

/// True when a walk over pixels that are not black leads from one to the other. With `corners` it may also
/// pass between two pixels that touch by their corners only.
enum class Steps { Sides, Corners };
bool isOpenBetween(const QImage& picture, QPoint from, QPoint to, Steps steps);

/// Pixels at which the two pictures of one size differ.
int countDifferences(const QImage& one, const QImage& other);

/// Turned counter-clockwise by quarter turns.
QImage quarterTurned(const QImage& picture, int turns);

/// Relative luminance, 0 to 1, and the contrast of two colours, 1 to 21.
double luminance(QRgb colour);
double contrast(QRgb one, QRgb other);

} // namespace zeltrona::art
