#include "render/board_surface.h"

#include "document/number_text.h"
#include "render/arc.h"
#include "render/bezier_stroke.h"
#include "render/ellipse.h"
#include "render/pen.h"
#include "render/polygon.h"

#include <algorithm>
#include <optional>

namespace zeltrona::render {

namespace {

std::int32_t roundPlace(float place) {
    return document::roundToInt32(static_cast<double>(place));
}

PointI roundPoint(float x, float y) {
    return {roundPlace(x), roundPlace(y)};
}

ConstPixelView readView(const QImage& image) {
    return {reinterpret_cast<const std::uint32_t*>(image.constBits()), image.width(), image.height(),
            image.bytesPerLine() / 4};
}

PixelView writeView(QImage& image) {
    return {reinterpret_cast<std::uint32_t*>(image.bits()), image.width(), image.height(),
            image.bytesPerLine() / 4};
}

/// Drawing reads words without alpha; pictures of another make are turned into such once.
QImage asWords(const QImage& picture) {
    return picture.format() == QImage::Format_RGB32 ? picture : picture.convertToFormat(QImage::Format_RGB32);
}

std::optional<std::uint32_t> insideOf(const DrawingState& state) {
    return state.fillStyle == FillStyle::Solid ? std::optional(pixelOf(state.fillColor)) : std::nullopt;
}

/// Fills what a picture of this size at (0, 0) leaves bare.
void fillAround(const PixelView& view, int width, int height, std::uint32_t pixel) {
    for (int y = 0; y < view.height; ++y) {
        fillSpan(view, y, y < height ? width : 0, view.width - 1, pixel);
    }
}

} // namespace

BoardSurface::BoardSurface(int width, int height)
    : m_image(std::max(width, 1), std::max(height, 1), QImage::Format_RGB32) {}

/// Lays down the background that the last clearing asked for.
void BoardSurface::settle() const {
    if (!m_clearPending) {
        return;
    }
    m_clearPending = false;
    const PixelView view = writeView(m_image);
    if (m_picture.isNull()) {
        fillAll(view, pixelOf(m_backColor));
    } else {
        fillAround(view, m_picture.width(), m_picture.height(), pixelOf(m_backColor));
        copyBlock(view, readView(m_picture), {0, 0, view.width, view.height, 0, 0}, RasterOp::SrcCopy);
    }
}

PixelView BoardSurface::view() {
    settle();
    return writeView(m_image);
}

const QImage& BoardSurface::image() const {
    settle();
    return m_image;
}

void BoardSurface::resize(int width, int height) {
    const QSize size(std::max(width, 1), std::max(height, 1));
    if (m_image.size() != size) {
        m_image = QImage(size, QImage::Format_RGB32);
        cls();
    }
}

void BoardSurface::setBackColor(Color color) {
    m_backColor = color;
    cls();
}

void BoardSurface::setPicture(const QImage& picture) {
    m_picture = asWords(picture);
    cls();
}

void BoardSurface::cls() {
    m_clearPending = true;
}

void BoardSurface::refresh() {
    settle();
    if (m_onRefresh) {
        m_onRefresh();
    }
}

void BoardSurface::pset(float x, float y, Color color) {
    strokeDot(view(), roundPoint(x, y), {state.drawWidth, pixelOf(color)});
}

Color BoardSurface::point(int x, int y) const {
    const ConstPixelView pixels = readView(image());
    const bool inside = x >= 0 && y >= 0 && x < pixels.width && y < pixels.height;
    return inside ? colorOf(pixels.row(y)[x]) : -1;
}

void BoardSurface::line(float x1, float y1, float x2, float y2, Color color) {
    strokeSegment(view(), roundPoint(x1, y1), roundPoint(x2, y2), {state.drawWidth, pixelOf(color)});
}

void BoardSurface::circle(float x, float y, float radius, Color color, bool filled) {
    const EllipseBox box = ellipseBoxOf(roundPlace(x - radius), roundPlace(y - radius),
                                        roundPlace(x + radius), roundPlace(y + radius));
    const auto inside = filled ? std::optional(pixelOf(state.fillColor)) : std::nullopt;
    drawEllipse(view(), box, {state.drawWidth, pixelOf(color), inside});
}

void BoardSurface::arc(float x, float y, double radius, Color color, double start, double end) {
    const ArcShape shape{{static_cast<double>(x), static_cast<double>(y)}, radius, start, end};
    strokeArc(view(), shape, {state.drawWidth, pixelOf(color)});
}

void BoardSurface::ellipse(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
    drawEllipse(view(), ellipseBoxOf(left, top, right, bottom),
                {state.drawWidth, pixelOf(state.foreColor), insideOf(state)});
}

void BoardSurface::polygon(std::span<const PointI> points) {
    drawPolygon(view(), points, {state.drawWidth, pixelOf(state.foreColor)}, insideOf(state));
}

void BoardSurface::polyBezier(std::span<const PointI> points) {
    strokeBeziers(view(), points, {state.drawWidth, pixelOf(state.foreColor)});
}

void BoardSurface::bitBlt(int x, int y, int width, int height, const QImage& source, int srcX, int srcY,
                          RasterOp op) {
    if (op == RasterOp::DstInvert) {
        copyBlock(view(), readView(m_image), {x, y, width, height, x, y}, op);
        return;
    }
    if (!source.isNull()) {
        const QImage words = asWords(source);
        copyBlock(view(), readView(words), {x, y, width, height, srcX, srcY}, op);
    }
}

void BoardSurface::paintSprite(std::int32_t x, std::int32_t y, const ColoredShape& lower,
                               const ColoredShape& upper, const QImage& mask) {
    if (lower.shape.size() != mask.size() || upper.shape.size() != mask.size()) {
        return;
    }
    const QImage lowerWords = asWords(lower.shape);
    const QImage upperWords = asWords(upper.shape);
    const QImage maskWords = asWords(mask);
    render::paintSprite(view(), x, y,
                        {readView(lowerWords), readView(upperWords), readView(maskWords),
                         pixelOf(lower.color), pixelOf(upper.color)});
}

int BoardSurface::textWidth(const QString& text) const {
    return m_texts.measure(state.font, text).width;
}

int BoardSurface::textHeight(const QString& text) const {
    return m_texts.measure(state.font, text).height;
}

void BoardSurface::print(const QString& text) {
    m_texts.draw(view(), state.font, text, roundPlace(state.currentX), roundPlace(state.currentY),
                 pixelOf(state.foreColor));
}

} // namespace zeltrona::render
