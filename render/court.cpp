#include "render/court.h"

#include "render/court_band.h"

namespace zeltrona::render {

namespace {

constexpr Color kWhite = 0xFFFFFF;

void layParquet(Board& board, std::int16_t court) {
    if (document::isBigCourt(court)) {
        board.pic.setPicture(board.art.picTbigParket);
    } else if (document::isSmallCourt(court)) {
        board.pic.setPicture(board.art.picTparket);
    }
}

void layColor(Board& board, const document::Session& session) {
    board.pic.setPicture({});
    if (document::isBigCourt(session.court) || document::isSmallCourt(session.court)) {
        const QSize size = boardSizeOf(session.court);
        board.pic.resize(size.width(), size.height());
    }
    board.pic.setBackColor(session.courtColor);
}

/// White lines come from the masks, painted where the mask is black; dark lines from the sheets on white.
void drawLines(Board& board, const document::Session& session, const CourtBand& band) {
    const BoardArt& art = board.art;
    const bool big = document::isBigCourt(session.court);
    if (session.useTexture != 0) {
        board.pic.bitBlt(0, 0, band.width, band.height, big ? art.picTbigBlack : art.picTblack, 0, band.row,
                         RasterOp::MergePaint);
    } else {
        board.pic.bitBlt(0, 0, band.width, band.height, big ? art.picTbig : art.picT, 0, band.row,
                         RasterOp::SrcAnd);
    }
}

} // namespace

QSize boardSizeOf(std::int16_t court) {
    return document::isBigCourt(court) ? QSize(532, 295) : QSize(363, 332);
}

void drawCourt(Board& board, const document::Session& session) {
    board.pic.setBackColor(kWhite);
    board.pic.cls();
    if (session.courtTexture != 0) {
        layParquet(board, session.court);
    } else {
        layColor(board, session);
    }
    if (const auto band = courtBandOf(session.court)) {
        drawLines(board, session, *band);
    }
}

} // namespace zeltrona::render
