#pragma once

#include "render/pixel_view.h"
#include "render/surface_font.h"

#include <QHash>
#include <QRect>
#include <QSet>
#include <QString>

#include <cstdint>
#include <vector>

namespace zeltrona::render {

struct TextSize {
    int width = 0;
    int height = 0;
};

/// Turns text into pixels that are drawn or not, and remembers the shapes of what it drew lately: a redraw
/// prints the same labels again and again, and shaping them anew would cost more than the rest of it.
class TextRaster {
public:
    /// Width of the widest line; height of all lines. An empty text is one line high.
    TextSize measure(const SurfaceFont& font, const QString& text);
    /// Draws the lines below each other from (x, y), the left top corner of the block.
    void draw(const PixelView& view, const SurfaceFont& font, const QString& text, std::int64_t x,
              std::int64_t y, std::uint32_t pixel);

private:
    struct Key {
        SurfaceFont font;
        QString text;
        QRect area = {}; ///< the part that shows, of a text too large to keep whole
        friend bool operator==(const Key&, const Key&) = default;
        friend size_t qHash(const Key& key, size_t seed) {
            return qHashMulti(seed, key.font.name, key.font.size, key.text, key.area.left(), key.area.top());
        }
    };
    /// Neighbouring pixels of a row; places are relative to the left top corner of the block.
    struct Run {
        int x = 0;
        int y = 0;
        int length = 0;
    };
    struct Shape {
        TextSize size;
        bool isWhole = true; ///< false when the text is too large to keep: no ink then
        std::vector<Run> ink;
    };
    static std::vector<Run> inkOf(const SurfaceFont& font, const QString& text, const QRect& area);
    static Shape shapeOf(const SurfaceFont& font, const QString& text);
    static void paint(const PixelView& view, const std::vector<Run>& ink, std::int64_t x, std::int64_t y,
                      std::uint32_t pixel);
    void drawLarge(const PixelView& view, const SurfaceFont& font, const QString& text, std::int64_t x,
                   std::int64_t y, std::uint32_t pixel);
    const Shape& remembered(const Key& key);
    /// The font, with a name that is worth asking the machine for.
    SurfaceFont asked(const SurfaceFont& font);

    QHash<Key, Shape> m_shapes;
    std::size_t m_kept = 0; ///< what the shapes take up, in runs
    QSet<QString> m_names;  ///< the first font names that were asked for
    QSet<QString> m_families;
};

} // namespace zeltrona::render
