#include "output/page_measure.h"

#include <QFontMetricsF>
#include <QString>

#include <cmath>

namespace zeltrona::output {
namespace {

// Measured at twenty times the size, whole-pixel rounding inside the font engine is too small to matter.
constexpr double kFine = 20;

QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

QFont pageFont(const PageFont& font, double pixelsPerPoint) {
    QFont result(QString::fromStdString(font.name.empty() ? "Arial" : font.name));
    result.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size * pixelsPerPoint))));
    result.setBold(font.bold);
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

FontMeasure::FontMeasure(const QFont& windowFont) : m_windowFont(windowFont) {
    if (m_windowFont.pixelSize() <= 0) {
        m_windowFont.setPixelSize(static_cast<int>(std::lround(m_windowFont.pointSizeF() * 96 / 72)));
    }
}

double FontMeasure::textWidth(std::string_view utf8, const PageFont& font) const {
    return QFontMetricsF(pageFont(font, kFine)).horizontalAdvance(fromUtf8(utf8)) / kFine;
}

double FontMeasure::textHeight(std::string_view, const PageFont& font) const {
    return QFontMetricsF(pageFont(font, kFine)).height() / kFine;
}

double FontMeasure::windowTextWidth(std::string_view utf8) const {
    return QFontMetricsF(m_windowFont).horizontalAdvance(fromUtf8(utf8));
}

} // namespace zeltrona::output
