#include "dialogs/player_preview.h"

#include "render/board_surface.h"

namespace zeltrona::dialogs {
namespace {

using render::BoardSurface;
using render::RasterOp;

constexpr int kCentre = 13;
constexpr int kRadius = 10;

QImage art(const char* name) {
    return QImage(QStringLiteral(":/art/%1.png").arg(QLatin1String(name)))
        .convertToFormat(QImage::Format_RGB32);
}

void blt(BoardSurface& pl, const QImage& source, RasterOp op) {
    pl.bitBlt(0, 0, kPreviewSide, kPreviewSide, source, 0, 0, op);
}

/// The colour inside the region, black around it.
QImage filled(Color color, const char* region) {
    BoardSurface plTmp(kPreviewSide, kPreviewSide);
    plTmp.setBackColor(color);
    plTmp.cls();
    blt(plTmp, art(region), RasterOp::SrcAnd);
    return plTmp.image();
}

} // namespace

QImage circlePreview(const QString& label, Color suit, Color font, Color background) {
    BoardSurface surface(kPreviewSide, kPreviewSide);
    surface.setBackColor(background);
    surface.cls();
    surface.state.fillColor = suit;
    surface.circle(kCentre, kCentre, kRadius, 0, true);
    surface.state.font = {QStringLiteral("Arial"), 10, true, false, false, false, 0};
    surface.state.foreColor = font;
    const int left = kCentre - surface.textWidth(label) / 2;
    const int top = kCentre - surface.textHeight(label) / 2;
    surface.state.currentX = static_cast<float>(left);
    surface.state.currentY = static_cast<float>(top);
    surface.print(label);
    return surface.image();
}

QImage composeBody(Color skin, Color suit) {
    BoardSurface pl(kPreviewSide, kPreviewSide);
    blt(pl, art("config_base"), RasterOp::SrcCopy);
    blt(pl, art("config_skin_mask"), RasterOp::SrcAnd);
    blt(pl, filled(skin, "config_skin_region"), RasterOp::SrcPaint);
    blt(pl, art("config_suit_mask"), RasterOp::SrcAnd);
    blt(pl, filled(suit, "config_suit_region"), RasterOp::SrcPaint);
    return pl.image();
}

} // namespace zeltrona::dialogs
