#pragma once

#include "document/records.h"
#include "render/drawing_basics.h"

#include <QFont>
#include <QImage>
#include <QString>

#include <cstdint>
#include <functional>
#include <span>

namespace zeltrona::render {

using document::Color;

/// Raster operations by what they do to each bit: destination D, source S.
enum class RasterOp : std::uint32_t {
    SrcCopy = 0xCC0020,    ///< S
    SrcAnd = 0x8800C6,     ///< D and S
    SrcPaint = 0xEE0086,   ///< D or S
    MergePaint = 0xBB0226, ///< D or not S
    DstInvert = 0x550009   ///< not D
};

/// The font of the surface; sizes in points at 96 to the inch whatever the screen, so that a picture is the same
/// on every machine.
struct SurfaceFont {
    QString name = QStringLiteral("Arial");
    int size = 8;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    std::int16_t charset = 0;
    friend bool operator==(const SurfaceFont&, const SurfaceFont&) = default;
};

/// What the drawers change and put back.
struct DrawingState {
    int drawWidth = 1;
    Color foreColor = 0;
    Color fillColor = 0;
    FillStyle fillStyle = FillStyle::Solid;
    DrawStyle drawStyle = DrawStyle::Solid;
    SurfaceFont font;
    float currentX = 0.0F;
    float currentY = 0.0F;
};

/// The board's one retained 32-bit image, drawn without smoothing: a pixel is drawn or not.
/// Units:  pixels, origin top left, y down; colours 0x00BBGGRR.
/// Reason: everything that leaves the program (screen, page, bitmap, clipboard) is taken from this image.
class BoardSurface {
public:
    explicit BoardSurface(int width = 363, int height = 332);

    int width() const { return m_image.width(); }
    int height() const { return m_image.height(); }
    /// Format_RGB32. The finished picture after refresh().
    const QImage& image() const { return m_image; }

    /// Keeps nothing of the picture when the size changes.
    void resize(int width, int height);

    DrawingState state;
    void setBackColor(Color color) { m_backColor = color; }
    Color backColor() const { return m_backColor; }
    /// The picture that cls() lays down; a null image takes it away. It is laid at (0, 0), unscaled.
    void setPicture(QImage picture);

    /// Fills with the background colour, then lays the picture on it.
    void cls();
    /// The picture is finished: tells the observer.
    void refresh();
    void setRefreshObserver(std::function<void()> observer) { m_onRefresh = std::move(observer); }

    void pset(float x, float y, Color color);
    Color point(int x, int y) const;
    /// A straight line with the pen state.drawWidth; coordinates are rounded half to even.
    void line(float x1, float y1, float x2, float y2, Color color);
    /// A circle with the pen; filled with state.fillColor when `filled`.
    void circle(float x, float y, float radius, Color color, bool filled);
    /// Part of a circle from start to end, radians, counter-clockwise as seen; not filled.
    void arc(float x, float y, double radius, Color color, double start, double end);
    /// Ellipse inside the rectangle, either corner first; outline foreColor, inside fillColor.
    void ellipse(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom);
    /// Closed, outline foreColor with the pen, inside fillColor.
    void polygon(std::span<const PointI> points);
    /// A start and three points for each cubic, with the pen in foreColor.
    void polyBezier(std::span<const PointI> points);
    /// Copies source's rectangle at (srcX, srcY) to (x, y); what falls outside either is left out.
    void bitBlt(int x, int y, int width, int height, const QImage& source, int srcX, int srcY, RasterOp op);

    /// Text measures with state.font, in pixels; the height counts every line.
    int textWidth(const QString& text) const;
    int textHeight(const QString& text) const;
    /// Prints at (currentX, currentY) in foreColor, transparent, no smoothing; lines go below each other.
    void print(const QString& text);

private:
    QImage m_image;
    QImage m_picture;
    Color m_backColor = 0xFFFFFF;
    std::function<void()> m_onRefresh;
};

} // namespace zeltrona::render
