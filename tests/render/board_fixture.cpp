#include "tests/render/board_fixture.h"

#include <QPainter>

namespace zeltrona::render {

namespace {

QImage plain(int width, int height, QRgb color) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

/// A sheet of bands, white, with one level line across each band, 10 rows below its top, as wide as the
/// sheet.
QImage lineSheet(int width, int bands, int bandHeight, int first) {
    QImage sheet = plain(width, bands * bandHeight, qRgb(255, 255, 255));
    QPainter painter(&sheet);
    for (int band = 0; band < bands; ++band) {
        painter.fillRect(0, band * bandHeight + first + band * 10, width, 1, Qt::black);
    }
    return sheet;
}

QImage mask(const QRect& shape) {
    QImage image = plain(50, 50, qRgb(255, 255, 255));
    QPainter(&image).fillRect(shape, Qt::black);
    return image;
}

QImage ring() {
    QImage image = plain(26, 26, qRgb(255, 255, 255));
    QPainter painter(&image);
    painter.fillRect(3, 3, 20, 2, Qt::black);
    return image;
}

} // namespace

BoardArt makeTestArt() {
    BoardArt art;
    art.picT = lineSheet(361, 6, 330, 10);
    art.picTblack = lineSheet(361, 6, 330, 15).convertToFormat(QImage::Format_Mono);
    art.picTbig = lineSheet(530, 3, 290, 10);
    art.picTbigBlack = lineSheet(530, 3, 290, 15).convertToFormat(QImage::Format_Mono);
    art.picTparket = plain(360, 329, qRgb(200, 150, 100));
    art.picTbigParket = plain(530, 290, qRgb(210, 160, 110));
    art.pKrugMask = ring();
    art.pBall = plain(26, 26, qRgb(0, 0, 0));
    QPainter(&art.pBall).fillRect(8, 8, 10, 10, qRgb(255, 128, 0));
    for (int i = 0; i < 24; ++i) {
        // Skin at the top, shirt below it, one column wider for each image: every image and turn is told
        // apart.
        art.ilpskin[static_cast<std::size_t>(i)] = mask({10, 5, 5 + i, 8});
        art.ilpmask[static_cast<std::size_t>(i)] = mask({8, 3, 9 + i, 40});
    }
    for (int i = 0; i < 6; ++i) {
        art.ilptshirt[static_cast<std::size_t>(i)] = mask({10, 20, 5 + i, 10});
    }
    return art;
}

namespace {

/// Calls for every pixel; much quicker than asking the surface for each.
template<class Visit> void eachPixel(const BoardSurface& surface, Visit visit) {
    const QImage& image = surface.image();
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            visit(x, y, row[x]);
        }
    }
}

} // namespace

int countOf(const BoardSurface& surface, Color color) {
    int count = 0;
    const std::uint32_t wanted = pixelOf(color);
    eachPixel(surface, [&](int, int, std::uint32_t pixel) { count += pixel == wanted ? 1 : 0; });
    return count;
}

QRect boundsOf(const BoardSurface& surface, Color color) {
    QRect bounds;
    const std::uint32_t wanted = pixelOf(color);
    eachPixel(surface, [&](int x, int y, std::uint32_t pixel) {
        if (pixel == wanted) {
            bounds |= QRect(x, y, 1, 1);
        }
    });
    return bounds;
}

QRect boundsOfOther(const BoardSurface& surface, Color color) {
    QRect bounds;
    const std::uint32_t background = pixelOf(color);
    eachPixel(surface, [&](int x, int y, std::uint32_t pixel) {
        if (pixel != background) {
            bounds |= QRect(x, y, 1, 1);
        }
    });
    return bounds;
}

std::map<Color, int> coloursOf(const BoardSurface& surface) {
    std::map<Color, int> counts;
    eachPixel(surface, [&](int, int, std::uint32_t pixel) { ++counts[colorOf(pixel)]; });
    return counts;
}

std::vector<QPoint> changedPixels(const BoardSurface& a, const BoardSurface& b) {
    std::vector<QPoint> points;
    eachPixel(a, [&](int x, int y, std::uint32_t pixel) {
        if (b.image().pixel(x, y) != pixel) {
            points.emplace_back(x, y);
        }
    });
    return points;
}

} // namespace zeltrona::render
