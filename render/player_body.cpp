#include "render/player_body.h"

#include "document/number_text.h"
#include "render/body_sprite.h"
#include "render/label.h"

namespace zeltrona::render {

namespace {

constexpr int kMiddle = 25;

} // namespace

std::int16_t drawBodyC(BoardSurface& dest, WorkingSurfaces& work, const BodyShapes& shapes, Color skinColor,
                       Color teamColor, std::int32_t angle, std::int32_t x, std::int32_t y,
                       const QString& text, Color textColor) {
    if (shapes.skin.isNull() || shapes.shirt.isNull() || shapes.mask.isNull()) {
        return 0;
    }
    const int quarters = -angle / 90;
    dest.paintSprite(x, y, {work.turns.of(shapes.skin, quarters), skinColor},
                     {work.turns.of(shapes.shirt, quarters), teamColor},
                     work.turns.of(shapes.mask, quarters));
    printLabel(dest, text, textColor, {x + kMiddle, y + kMiddle});
    return 1;
}

void paintBody(Board& board, const BodyLook& look) {
    const BodySprite sprite = bodySpriteOf(look.angle, look.body);
    const auto skinAndMask = static_cast<std::size_t>(sprite.skinAndMask - 1);
    const auto shirt = static_cast<std::size_t>(sprite.shirt - 1);
    const BodyShapes shapes{board.art.ilpskin[skinAndMask], board.art.ilptshirt[shirt],
                            board.art.ilpmask[skinAndMask]};
    const std::int16_t drawn =
        drawBodyC(board.pic, board.work, shapes, look.skin, look.teamColor, -sprite.baseAngle,
                  document::roundToInt16(look.x), document::roundToInt16(look.y),
                  decodeText(look.text, look.charset), look.textColor);
    if (drawn == 0 && board.onDrawingError) {
        board.onDrawingError("Low level Drawing error.");
    }
}

void drawPlayerBody(Board& board, const Scene& scene, std::string_view kind, std::size_t index) {
    const document::Session& session = scene.session;
    const bool offence = kind == "off";
    const auto& players = offence ? scene.frame.offPlayers : scene.frame.defPlayers;
    if (index >= players.size()) {
        return;
    }
    const document::PlayerRec& player = players[index];
    paintBody(board, {player.x, player.y, player.angle, player.body, player.skin,
                      offence ? session.colorOff : session.colorDef, player.txt,
                      offence ? session.colorOffFont : session.colorDefFont, session.fontCharset});
}

} // namespace zeltrona::render
