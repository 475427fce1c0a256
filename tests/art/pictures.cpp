#include "tests/art/pictures.h"

#include <algorithm>
#include <cmath>
#include <deque>

namespace zeltrona::art {

QImage committed(const QString& name) {
    return QImage(QStringLiteral(ZELTRONA_SOURCE_DIR "/assets/art/") + name);
}

bool black(const QImage& picture, int x, int y) {
    return picture.valid(x, y) && picture.pixel(x, y) == qRgb(0, 0, 0);
}

bool white(const QImage& picture, int x, int y) {
    return picture.valid(x, y) && picture.pixel(x, y) == qRgb(255, 255, 255);
}

QImage band(const QImage& sheet, int y, int width, int height) {
    return sheet.copy(0, y, width, height);
}

std::vector<QPoint> blackPixels(const QImage& picture) {
    std::vector<QPoint> pixels;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (black(picture, x, y)) {
                pixels.emplace_back(x, y);
            }
        }
    }
    return pixels;
}

bool isOpenBetween(const QImage& picture, QPoint from, QPoint to, Steps steps) {
    std::vector<bool> seen(static_cast<std::size_t>(picture.width() * picture.height()));
    std::deque<QPoint> next{from};
    while (!next.empty()) {
        const QPoint at = next.front();
        next.pop_front();
        if (!picture.valid(at) || black(picture, at.x(), at.y())) {
            continue;
        }
        const auto index = static_cast<std::size_t>(at.y() * picture.width() + at.x());
        if (seen[index]) {
            continue;
        }
        seen[index] = true;
        if (at == to) {
            return true;
        }
        for (int dy = -1; dy <= 1; ++dy) {
            for (int dx = -1; dx <= 1; ++dx) {
                if (steps == Steps::Corners || dx == 0 || dy == 0) {
                    next.push_back(at + QPoint(dx, dy));
                }
            }
        }
    }
    return false;
}

int countDifferences(const QImage& one, const QImage& other) {
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            count += one.pixel(x, y) == other.pixel(x, y) ? 0 : 1;
        }
    }
    return count;
}

QImage quarterTurned(const QImage& picture, int turns) {
    QImage result = picture.convertToFormat(QImage::Format_RGB32);
    for (int i = 0; i < turns; ++i) {
        const QImage source = result;
        const int last = source.width() - 1;
        for (int y = 0; y < source.height(); ++y) {
            for (int x = 0; x < source.width(); ++x) {
                result.setPixel(y, last - x, source.pixel(x, y));
            }
        }
    }
    return result;
}

double luminance(QRgb colour) {
    const auto linear = [](int channel) {
        const double part = channel / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double contrast(QRgb one, QRgb other) {
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

} // namespace zeltrona::art
