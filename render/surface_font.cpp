#include "render/surface_font.h"

#include <algorithm>

namespace zeltrona::render {

int pixelSizeOf(const SurfaceFont& font) {
    constexpr int kDefaultPoints = 8;
    constexpr int kMostPixels = 16384; // font engines count pixels in 16 bits with a sign
    const int points = font.size > 0 ? font.size : kDefaultPoints;
    return std::clamp((points * 96 + 36) / 72, 1, kMostPixels);
}

QFont toolkitFontOf(const SurfaceFont& font) {
    QFont made(font.name);
    made.setPixelSize(pixelSizeOf(font));
    made.setBold(font.bold);
    made.setItalic(font.italic);
    made.setUnderline(font.underline);
    made.setStrikeOut(font.strikethrough);
    made.setStyleStrategy(QFont::NoAntialias);
    made.setHintingPreference(QFont::PreferFullHinting);
    made.setKerning(false);
    return made;
}

} // namespace zeltrona::render
