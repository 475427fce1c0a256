#pragma once

#include "output/page_layout.h"

#include <QFont>

namespace zeltrona::output {

/// The toolkit's font for a printed text; one unit of the painter is one point.
QFont pageFont(const PageFont& font, double pixelsPerPoint = 1);

/// Measures with the toolkit's fonts, unhinted, so that the printer and the preview break lines alike.
class FontMeasure : public PageMeasure {
public:
    explicit FontMeasure(const QFont& windowFont);
    double textWidth(std::string_view utf8, const PageFont& font) const override;
    double textHeight(std::string_view utf8, const PageFont& font) const override;
    double windowTextWidth(std::string_view utf8) const override;

private:
    QFont m_windowFont;
};

} // namespace zeltrona::output
