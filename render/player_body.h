#pragma once

#include "render/board.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace zeltrona::render {

/// The three shapes of a body, 50 x 50, black on white, all facing the same way.
struct BodyShapes {
    const QImage& skin;
    const QImage& shirt;
    const QImage& mask;
};

/// Paints a body on `dest`, its cell's left top corner at (x, y): the mask cuts it out of the picture, skin
/// and shirt come in their colours, and what neither covers stays black and makes its outline. The label
/// stands centred on (25, 25) of the cell, over the sprite. `angle`: 0 or less; the shapes are turned
/// counter-clockwise by as many degrees, in quarters. Result:  non-zero on success; 0, with nothing painted,
/// when a shape is missing.
std::int16_t drawBodyC(BoardSurface& dest, WorkingSurfaces& work, const BodyShapes& shapes, Color skinColor,
                       Color teamColor, std::int32_t angle, std::int32_t x, std::int32_t y,
                       const QString& text, Color textColor);

/// What a body sprite is painted from; position, angle and pose may come from another record than the look.
struct BodyLook {
    float x = 0.0F; ///< left of the cell; rounded to 16 bits, as y is
    float y = 0.0F;
    std::int16_t angle = 0;
    std::int16_t body = 0;
    Color skin = 0;
    Color teamColor = 0;
    std::string text; ///< bytes of `charset`
    Color textColor = 0;
    std::int16_t charset = 238;
};
/// A failed drawing is told, and nothing is painted.
void paintBody(Board& board, const BodyLook& look);

/// The record at `index` of offPlayers for the kind "off", else of defPlayers; nothing for an index beyond
/// them.
void drawPlayerBody(Board& board, const Scene& scene, std::string_view kind, std::size_t index);

} // namespace zeltrona::render
