#include "render/marks.h"

#include "document/frame_records.h"
#include "document/number_text.h"

namespace zeltrona::render {

namespace {

constexpr int kCell = 26;
constexpr int kMiddle = 13;

void drawTriangle(BoardSurface& pic, const document::TriangleRec& triangle) {
    constexpr float kSide = 12.0F;
    const float x = triangle.x;
    const float y = triangle.y;
    pic.line(x, y, x + kSide, y, triangle.color);
    pic.line(x, y, x + kSide / 2, y - kSide, triangle.color);
    pic.line(x + kSide, y, x + kSide / 2, y - kSide, triangle.color);
}

void printTextPicture(BoardSurface& pic, const document::TxtPicRec& picture, std::int16_t charset) {
    const QString text = decodeText(picture.text, charset);
    DrawingState& state = pic.state;
    state.font = {decodeText(picture.fontName, charset),
                  picture.fontSize,
                  picture.bold,
                  picture.italic,
                  picture.underline,
                  picture.strikethrough,
                  charset};
    state.foreColor = picture.color;
    state.currentX = picture.x;
    state.currentY = picture.y - static_cast<float>(pic.textHeight(text));
    pic.print(text);
}

/// The players use the mask for their own disc, so it is made anew for each group of balls.
void makeBallMask(BoardSurface& mask) {
    mask.setBackColor(0xFFFFFF);
    mask.state.fillColor = 0;
    mask.circle(kMiddle, kMiddle, 7.0F, 0, true);
}

void copyBall(Board& board, float x, float y) {
    const int left = document::roundToInt32(x - 13.0F);
    const int top = document::roundToInt32(y - 20.0F);
    board.pic.bitBlt(left, top, kCell, kCell, board.work.pMask.image(), 0, 0, RasterOp::SrcAnd);
    board.pic.bitBlt(left, top, kCell, kCell, board.art.pBall, 0, 0, RasterOp::SrcPaint);
}

} // namespace

void drawShadows(Board& board, const std::vector<document::ShadowRec>& shadows) {
    if (!document::hasShadows(shadows)) {
        return;
    }
    DrawingState& state = board.pic.state;
    const Color fillColor = state.fillColor;
    const Color foreColor = state.foreColor;
    for (const document::ShadowRec& shadow : shadows) {
        state.fillColor = shadow.color;
        state.foreColor = shadow.color;
        board.pic.ellipse(document::roundToInt32(shadow.x), document::roundToInt32(shadow.y), shadow.w,
                          shadow.h);
    }
    state.fillColor = fillColor;
    state.foreColor = foreColor;
}

void drawTriangles(Board& board, const std::vector<document::TriangleRec>& triangles) {
    if (!document::hasTriangles(triangles)) {
        return;
    }
    DrawingState& state = board.pic.state;
    const int drawWidth = state.drawWidth;
    state.drawWidth = 2;
    for (const document::TriangleRec& triangle : triangles) {
        drawTriangle(board.pic, triangle);
    }
    state.drawWidth = drawWidth;
}

void drawTextPictures(Board& board, const std::vector<document::TxtPicRec>& txtPics,
                      std::int16_t fontCharset) {
    if (!document::hasTxtPics(txtPics)) {
        return;
    }
    DrawingState& state = board.pic.state;
    SurfaceFont font = state.font;
    const Color foreColor = state.foreColor;
    for (const document::TxtPicRec& picture : txtPics) {
        printTextPicture(board.pic, picture, fontCharset);
    }
    font.charset = fontCharset;
    state.font = font;
    state.foreColor = foreColor;
}

void drawBalls(Board& board, const std::vector<document::BallRec>& balls) {
    if (!document::hasBalls(balls)) {
        return;
    }
    makeBallMask(board.work.pMask);
    for (const document::BallRec& ball : balls) {
        copyBall(board, ball.x, ball.y);
    }
}

void drawBallAt(Board& board, float x, float y) {
    makeBallMask(board.work.pMask);
    copyBall(board, x, y);
}

} // namespace zeltrona::render
