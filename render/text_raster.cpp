#include "render/text_raster.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace zeltrona::render {

namespace {

/// Runs of all shapes that are kept, about 12 megabytes: a play of a thousand texts prints them again and
/// again.
constexpr std::size_t kMostKept = 1024UL * 1024;
/// The machine takes a thousandth of a second to find a substitute for a font that it lacks. A play that
/// names more fonts than this gets only those that are there, and Arial for the others.
constexpr int kMostNames = 32;
/// A text larger than this is drawn afresh each time, and only where it shows.
constexpr std::int64_t kMostInk = 64L * 1024;

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

bool isDrawn(QRgb pixel) {
    return qAlpha(pixel) >= 128; // an engine that smooths all the same is cut to drawn or not
}

/// The end of the pixels from `x` on that are drawn like the one there. Most of a large text is far from any
/// edge, so that eight at a time are looked at first.
int endOfRun(const QRgb* row, int x, int width) {
    const bool drawn = isDrawn(row[x]);
    for (bool alike = true; alike && x + 8 <= width;) {
        for (int i = 0; i < 8; ++i) {
            alike = alike & (isDrawn(row[x + i]) == drawn);
        }
        x += alike ? 8 : 0;
    }
    while (x < width && isDrawn(row[x]) == drawn) {
        ++x;
    }
    return x;
}

} // namespace

std::vector<TextRaster::Run> TextRaster::inkOf(const SurfaceFont& font, const QString& text,
                                               const QRect& area) {
    const QImage picture = pictureOf(font, text, area);
    std::vector<Run> ink;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width();) {
            const int end = endOfRun(row, x, picture.width());
            if (isDrawn(row[x])) {
                ink.push_back({area.x() + x, area.y() + y, end - x});
            }
            x = end;
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

const TextRaster::Shape& TextRaster::remembered(const Key& key) {
    if (const auto found = m_shapes.constFind(key); found != m_shapes.constEnd()) {
        return *found;
    }
    const Shape shape = key.area.isEmpty() ? shapeOf(key.font, key.text)
                                           : Shape{{}, true, inkOf(key.font, key.text, key.area)};
    constexpr std::size_t kForKey = 32;
    const std::size_t room = shape.ink.size() + static_cast<std::size_t>(key.text.size()) + kForKey;
    if (m_kept + room > kMostKept) {
        m_shapes.clear();
        m_kept = 0;
    }
    m_kept += room;
    return *m_shapes.insert(key, shape);
}

SurfaceFont TextRaster::asked(const SurfaceFont& font) {
    if (m_names.contains(font.name)) {
        return font;
    }
    if (m_names.size() < kMostNames) {
        m_names.insert(font.name);
        return font;
    }
    if (m_families.isEmpty()) {
        const QStringList families = QFontDatabase::families();
        m_families = QSet<QString>(families.begin(), families.end());
    }
    SurfaceFont known = font;
    known.name = m_families.contains(font.name) ? font.name : SurfaceFont{}.name;
    return known;
}

TextSize TextRaster::measure(const SurfaceFont& font, const QString& text) {
    return remembered({asked(font), text}).size;
}

void TextRaster::draw(const PixelView& view, const SurfaceFont& font, const QString& text, std::int64_t x,
                      std::int64_t y, std::uint32_t pixel) {
    if (text.isEmpty()) {
        return;
    }
    const SurfaceFont found = asked(font);
    const Shape& shape = remembered({found, text});
    if (shape.isWhole) {
        paint(view, shape.ink, x, y, pixel);
    } else {
        drawLarge(view, found, text, x, y, pixel);
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
        paint(view, remembered({font, text, shown}).ink, x, y, pixel);
    }
}

} // namespace zeltrona::render
