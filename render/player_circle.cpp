#include "render/player_circle.h"

#include "document/number_text.h"
#include "render/label.h"

namespace zeltrona::render {

namespace {

constexpr int kCell = 26;
constexpr int kMiddle = 13;
constexpr float kRadius = 9.0F;

void drawDisc(BoardSurface& surface, Color backColor, Color fillColor) {
    surface.setBackColor(backColor);
    surface.state.fillColor = fillColor;
    surface.circle(kMiddle, kMiddle, kRadius, fillColor, true);
}

} // namespace

std::int16_t drawPlayerC(BoardSurface& mask, BoardSurface& color, const QImage& ringMask, Color fillColor,
                         const QString& text, Color textColor) {
    if (ringMask.isNull()) {
        return 0;
    }
    drawDisc(mask, 0xFFFFFF, 0);
    drawDisc(color, 0, fillColor);
    printLabel(color, text, textColor, {kMiddle, kMiddle});
    return 1;
}

void drawPlayers(Board& board, float x, float y, Color fillColor, const std::string& text, Color textColor,
                 std::int16_t charset) {
    WorkingSurfaces& work = board.work;
    const QString label = decodeText(text, charset);
    if (drawPlayerC(work.pMask, work.p, board.art.pKrugMask, fillColor, label, textColor) == 0
        && board.onDrawingError) {
        board.onDrawingError("Drawing error.");
    }
    const int left = document::roundToInt32(x);
    const int top = document::roundToInt32(y);
    board.pic.bitBlt(left, top, kCell, kCell, work.pMask.image(), 0, 0, RasterOp::SrcAnd);
    board.pic.bitBlt(left, top, kCell, kCell, work.p.image(), 0, 0, RasterOp::SrcPaint);
    board.pic.bitBlt(left, top, kCell, kCell, board.art.pKrugMask, 0, 0, RasterOp::SrcAnd);
}

} // namespace zeltrona::render
