#include "render/board_art.h"

#include <QString>

namespace zeltrona::render {

namespace {

constexpr int kBodySize = 50;

QImage load(const char* name) {
    const QImage picture(QStringLiteral(":/art/%1.png").arg(QLatin1String(name)));
    return picture.isNull() ? picture : picture.convertToFormat(QImage::Format_RGB32);
}

/// Cuts a sheet of bodies, stacked from the top, into its images.
template<std::size_t Count> void loadBodies(std::array<QImage, Count>& images, const char* name) {
    const QImage sheet = load(name);
    if (sheet.width() != kBodySize || sheet.height() != kBodySize * static_cast<int>(Count)) {
        return;
    }
    for (std::size_t i = 0; i < Count; ++i) {
        images[i] = sheet.copy(0, kBodySize * static_cast<int>(i), kBodySize, kBodySize);
    }
}

} // namespace

BoardArt loadBoardArt() {
    BoardArt art;
    art.picT = load("picT");
    art.picTblack = load("picTblack");
    art.picTbig = load("picTbig");
    art.picTbigBlack = load("picTbigBlack");
    art.picTparket = load("picTparket");
    art.picTbigParket = load("picTbigParket");
    art.pKrugMask = load("pKrugMask");
    art.pBall = load("pBall");
    loadBodies(art.ilpskin, "bodies_skin");
    loadBodies(art.ilptshirt, "bodies_shirt");
    loadBodies(art.ilpmask, "bodies_mask");
    return art;
}

} // namespace zeltrona::render
