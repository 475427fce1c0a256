#pragma once

#include "document/records.h"
#include "render/drawing_basics.h"
#include "render/pixel_view.h"
#include "render/raster_ops.h"
#include "render/surface_font.h"
#include "render/text_raster.h"

#include <QImage>
#include <QString>

#include <cstdint>
#include <functional>
#include <span>

namespace zeltrona::render {

using document::Color;

/// What the drawers change and put back.
struct DrawingState {
    int drawWidth = 1; ///< pen of every shape, in pixels; below 1 counts as 1
    Color foreColor = 0;
    Color fillColor = 0;
    FillStyle fillStyle = FillStyle::Solid;
    DrawStyle drawStyle = DrawStyle::Solid;
    SurfaceFont font;
    float currentX = 0.0F;
    float currentY = 0.0F;
    friend bool operator==(const DrawingState&, const DrawingState&) = default;
};

/// A shape, black on white, and what stands for its black.
struct ColoredShape {
    QImage shape;
    Color color = 0;
};

/// A retained 32-bit image, drawn without smoothing: a pixel is drawn or not. The board is one, and so are
/// the working surfaces of its drawers. Units:  pixels, origin top left, y down; colours 0x00BBGGRR, bits
/// above them do not count. Places given as
///         single-precision numbers are rounded half to even; past 32 bits they wrap.
/// Reason: everything that leaves the program (screen, page, bitmap, clipboard) is taken from the board's
/// image.
class BoardSurface {
public:
    explicit BoardSurface(int width = 363, int height = 332);

    int width() const { return m_image.width(); }
    int height() const { return m_image.height(); }
    /// Format_RGB32. The finished picture after refresh().
    const QImage& image() const;

    /// A new size clears the surface; the same size does nothing.
    void resize(int width, int height);

    DrawingState state;
    /// Sets the background colour and clears the surface.
    void setBackColor(Color color);
    Color backColor() const { return m_backColor; }
    /// The picture that cls() lays down, at (0, 0), unscaled; a null image takes it away. Clears the surface.
    void setPicture(const QImage& picture);

    /// Fills with the background colour, then lays the picture on it.
    void cls();
    /// The picture is finished: tells the observer.
    void refresh();
    void setRefreshObserver(std::function<void()> observer) { m_onRefresh = std::move(observer); }

    /// A dot with the pen.
    void pset(float x, float y, Color color);
    /// The colour of a pixel; -1 outside the surface.
    Color point(int x, int y) const;
    /// A straight line with the pen, both ends included.
    void line(float x1, float y1, float x2, float y2, Color color);
    /// A circle with the pen, 2 * radius pixels across: from x - radius to the column before x + radius, and
    /// so down; filled with state.fillColor when `filled`.
    void circle(float x, float y, float radius, Color color, bool filled);
    /// Part of a circle from start to end, radians, counter-clockwise as seen; not filled. The middle is not
    /// rounded.
    void arc(float x, float y, double radius, Color color, double start, double end);
    /// Ellipse inside the rectangle, either corner first, the far column and row left out; outline foreColor
    /// with the pen, inside fillColor unless the fill style is transparent.
    void ellipse(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom);
    /// Closed, outline foreColor with the pen, inside fillColor unless the fill style is transparent.
    void polygon(std::span<const PointI> points);
    /// A start and three points for each cubic, with the pen in foreColor.
    void polyBezier(std::span<const PointI> points);
    /// Copies source's rectangle at (srcX, srcY) to (x, y); what falls outside either is left out. A null
    /// source copies nothing.
    void bitBlt(int x, int y, int width, int height, const QImage& source, int srcX, int srcY, RasterOp op);
    /// Puts two shapes in their colours on the surface, `upper` over `lower`, cut out by `mask`: pictures of
    /// one size, black on white. Nothing when their sizes differ.
    void paintSprite(std::int32_t x, std::int32_t y, const ColoredShape& lower, const ColoredShape& upper,
                     const QImage& mask);

    /// Text measures with state.font, in pixels: the widest line; the height counts every line.
    int textWidth(const QString& text) const;
    int textHeight(const QString& text) const;
    /// Prints at (currentX, currentY) in foreColor, transparent, no smoothing; lines go below each other. The
    /// place stays as it is.
    void print(const QString& text);

private:
    void settle() const;
    PixelView view();

    // A redraw clears several times in a row, and only the last one shows: clearing waits for the next look
    // or stroke.
    mutable QImage m_image;
    mutable bool m_clearPending = true;
    QImage m_picture;
    Color m_backColor = 0xFFFFFF;
    std::function<void()> m_onRefresh;
    mutable TextRaster m_texts;
};

/// Keeps the drawing state of a surface and puts it back at the end of its life.
class StateKeeper {
public:
    explicit StateKeeper(BoardSurface& surface) : m_surface(surface), m_state(surface.state) {}
    ~StateKeeper() { m_surface.state = m_state; }
    StateKeeper(const StateKeeper&) = delete;
    StateKeeper& operator=(const StateKeeper&) = delete;

private:
    BoardSurface& m_surface;
    DrawingState m_state;
};

} // namespace zeltrona::render
