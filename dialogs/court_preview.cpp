#include "dialogs/court_preview.h"

#include "render/board_surface.h"

#include <array>

namespace zeltrona::dialogs {
namespace {

using render::RasterOp;

constexpr int kHalfHeight = 146;
constexpr int kWholeHeight = 293;

QImage art(const char* name) {
    return QImage(QStringLiteral(":/art/%1.png").arg(QLatin1String(name)))
        .convertToFormat(QImage::Format_RGB32);
}

/// The court's drawing at the size of the preview.
QImage drawingOf(const QImage& strip, const StripPlace& place, RasterOp op) {
    render::BoardSurface drawing(kCourtPreviewWidth, kCourtPreviewHeight);
    drawing.setBackColor(op == RasterOp::SrcAnd ? 0xFFFFFF : 0);
    drawing.cls();
    for (int row = 0; row < place.height; ++row) {
        const int y = row * kCourtPreviewHeight / place.height;
        drawing.bitBlt(0, y, kCourtPreviewWidth, 1, strip, 0, place.top + row, op);
    }
    return drawing.image();
}

} // namespace

StripPlace stripPlace(std::int16_t court) {
    static constexpr std::array<StripPlace, 9> kPlaces{{{0, kHalfHeight},
                                                        {146, kHalfHeight},
                                                        {292, kWholeHeight},
                                                        {585, kHalfHeight},
                                                        {731, kHalfHeight},
                                                        {877, kWholeHeight},
                                                        {1170, kHalfHeight},
                                                        {1316, kHalfHeight},
                                                        {1462, kWholeHeight}}};
    return kPlaces.at(static_cast<std::size_t>(court - 1));
}

QImage courtPreview(const CourtChoice& choice) {
    render::BoardSurface surface(kCourtPreviewWidth, kCourtPreviewHeight);
    if (choice.texture) {
        surface.setPicture(art("court_texture"));
    } else {
        surface.setBackColor(choice.color);
    }
    surface.cls();
    const RasterOp op = choice.whiteLines ? RasterOp::SrcPaint : RasterOp::SrcAnd;
    const QImage strip = art(choice.whiteLines ? "court_strip_white" : "court_strip_black");
    surface.bitBlt(0, 0, kCourtPreviewWidth, kCourtPreviewHeight,
                   drawingOf(strip, stripPlace(choice.court), op), 0, 0, op);
    return surface.image();
}

} // namespace zeltrona::dialogs
