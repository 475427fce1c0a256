#include "render/text_raster.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QStringList>

#include <algorithm>

namespace zeltrona::render {

namespace {

constexpr int kMostShapes = 256;
/// A text larger than this is drawn afresh each time, and only where it shows.
constexpr std::int64_t kMostInk = 64 * 1024;

QStringList linesOf(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text.split(QLatin1Char('\n'));
}

TextSize sizeOf(const QFontMetrics& metrics, const QStringList& lines) {
    TextSize size{0, metrics.height() * static_cast<int>(lines.size())};
    for (const QString& line : lines) {
        size.width = std::max(size.width, metrics.horizontalAdvance(line));
    }
    return size;
}

/// The block with room for what slanted or accented letters reach beyond it.
QRect inkAreaOf(const SurfaceFont& font, TextSize size) {
    const int room = pixelSizeOf(font) / 2 + 2;
    return QRect(0, 0, size.width, size.height).adjusted(-room, -room, room, room);
}

} // namespace

TextRaster::Shape TextRaster::shapeOf(const SurfaceFont& font, const QString& text, const QRect& area) {
    const QFont made = toolkitFontOf(font);
    const QFontMetrics metrics(made);
    const QStringList lines = linesOf(text);
    Shape shape{sizeOf(metrics, lines), area, {}};
    if (area.isEmpty()) {
        return shape;
    }
    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing, false);
    painter.setFont(made);
    painter.setPen(Qt::white);
    painter.translate(-area.topLeft());
    int baseline = metrics.ascent();
    for (const QString& line : lines) {
        painter.drawText(QPoint(0, baseline), line);
        baseline += metrics.height();
    }
    painter.end();
    shape.ink.reserve(static_cast<std::size_t>(area.width()) * static_cast<std::size_t>(area.height()));
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        std::transform(row, row + image.width(), std::back_inserter(shape.ink),
                       [](QRgb pixel) { return static_cast<std::uint8_t>(qAlpha(pixel) >= 128 ? 1 : 0); });
    }
    return shape;
}

void TextRaster::paint(const PixelView& view, const Shape& shape, std::int64_t x, std::int64_t y,
                       std::uint32_t pixel) {
    const std::uint8_t* ink = shape.ink.data();
    for (int row = 0; row < shape.area.height(); ++row) {
        for (int column = 0; column < shape.area.width(); ++column, ++ink) {
            if (*ink != 0) {
                setPixel(view, x + shape.area.x() + column, y + shape.area.y() + row, pixel);
            }
        }
    }
}

const TextRaster::Shape& TextRaster::remembered(const SurfaceFont& font, const QString& text) {
    const Key key{font, text};
    if (const auto found = m_shapes.constFind(key); found != m_shapes.constEnd()) {
        return *found;
    }
    if (m_shapes.size() >= kMostShapes) {
        m_shapes.clear();
    }
    const TextSize size = sizeOf(QFontMetrics(toolkitFontOf(font)), linesOf(text));
    const QRect area = inkAreaOf(font, size);
    const bool large = std::int64_t{area.width()} * area.height() > kMostInk;
    return *m_shapes.insert(key, shapeOf(font, text, large ? QRect() : area));
}

TextSize TextRaster::measure(const SurfaceFont& font, const QString& text) {
    return remembered(font, text).size;
}

void TextRaster::draw(const PixelView& view, const SurfaceFont& font, const QString& text, std::int64_t x,
                      std::int64_t y, std::uint32_t pixel) {
    if (text.isEmpty()) {
        return;
    }
    const Shape& shape = remembered(font, text);
    if (!shape.area.isEmpty()) {
        paint(view, shape, x, y, pixel);
        return;
    }
    const QRect whole = inkAreaOf(font, shape.size);
    const std::int64_t left = std::max<std::int64_t>(whole.left(), -x);
    const std::int64_t top = std::max<std::int64_t>(whole.top(), -y);
    const std::int64_t right = std::min<std::int64_t>(whole.right(), view.width - 1 - x);
    const std::int64_t bottom = std::min<std::int64_t>(whole.bottom(), view.height - 1 - y);
    if (left <= right && top <= bottom) {
        QRect shown;
        shown.setCoords(static_cast<int>(left), static_cast<int>(top), static_cast<int>(right),
                        static_cast<int>(bottom));
        paint(view, shapeOf(font, text, shown), x, y, pixel);
    }
}

} // namespace zeltrona::render
