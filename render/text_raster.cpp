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

/// The lines in white on nothing; the picture shows `area`.
QImage pictureOf(const SurfaceFont& font, const QString& text, const QRect& area) {
    QImage picture(area.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    const QFont made = toolkitFontOf(font);
    const QFontMetrics metrics(made);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing, false);
    painter.setFont(made);
    painter.setPen(Qt::white);
    painter.translate(-area.topLeft());
    int baseline = metrics.ascent();
    for (const QString& line : linesOf(text)) {
        painter.drawText(QPoint(0, baseline), line);
        baseline += metrics.height();
    }
    return picture;
}

} // namespace

std::vector<TextRaster::Run> TextRaster::inkOf(const SurfaceFont& font, const QString& text,
                                               const QRect& area) {
    const QImage picture = pictureOf(font, text, area);
    std::vector<Run> ink;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        bool inside = false;
        for (int x = 0; x < picture.width(); ++x) {
            const bool drawn =
                qAlpha(row[x]) >= 128; // an engine that smooths all the same is cut to drawn or not
            if (drawn && !inside) {
                ink.push_back({area.x() + x, area.y() + y, 0});
            }
            if (drawn) {
                ++ink.back().length;
            }
            inside = drawn;
        }
    }
    return ink;
}

TextRaster::Shape TextRaster::shapeOf(const SurfaceFont& font, const QString& text) {
    const TextSize size = sizeOf(QFontMetrics(toolkitFontOf(font)), linesOf(text));
    const QRect area = inkAreaOf(font, size);
    if (std::int64_t{area.width()} * area.height() > kMostInk) {
        return {size, false, {}};
    }
    return {size, true, inkOf(font, text, area)};
}

void TextRaster::paint(const PixelView& view, const std::vector<Run>& ink, std::int64_t x, std::int64_t y,
                       std::uint32_t pixel) {
    for (const Run& run : ink) {
        fillSpan(view, y + run.y, x + run.x, x + run.x + run.length - 1, pixel);
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
    return *m_shapes.insert(key, shapeOf(font, text));
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
    if (shape.isWhole) {
        paint(view, shape.ink, x, y, pixel);
    } else {
        drawLarge(view, font, text, x, y, pixel);
    }
}

void TextRaster::drawLarge(const PixelView& view, const SurfaceFont& font, const QString& text,
                           std::int64_t x, std::int64_t y, std::uint32_t pixel) {
    const QRect whole = inkAreaOf(font, measure(font, text));
    const std::int64_t left = std::max<std::int64_t>(whole.left(), -x);
    const std::int64_t top = std::max<std::int64_t>(whole.top(), -y);
    const std::int64_t right = std::min<std::int64_t>(whole.right(), view.width - 1 - x);
    const std::int64_t bottom = std::min<std::int64_t>(whole.bottom(), view.height - 1 - y);
    if (left <= right && top <= bottom) {
        QRect shown;
        shown.setCoords(static_cast<int>(left), static_cast<int>(top), static_cast<int>(right),
                        static_cast<int>(bottom));
        paint(view, inkOf(font, text, shown), x, y, pixel);
    }
}

} // namespace zeltrona::render
