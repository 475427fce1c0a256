#pragma once

#include <QFont>
#include <QString>

#include <cstdint>

namespace zeltrona::render {

/// The font of a surface; sizes in points at 96 to the inch whatever the screen, so that a picture is the
/// same on every machine. `charset` tells drawers how bytes become characters; it does not change how they
/// look.
struct SurfaceFont {
    QString name = QStringLiteral("Arial");
    int size = 8;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    std::int16_t charset = 0;
    friend bool operator==(const SurfaceFont&, const SurfaceFont&) = default;
};

/// Height of the font in pixels: points at 96 to the inch. A size of 0 or below counts as 8 points, one past
/// what font engines can do as the largest.
int pixelSizeOf(const SurfaceFont& font);

/// The toolkit's font for drawing on a surface: whole pixels, no smoothing, no kerning. A name that the
/// machine lacks gives the nearest font that it has.
QFont toolkitFontOf(const SurfaceFont& font);

} // namespace zeltrona::render
