#pragma once

#include <QImage>

#include <array>

namespace zeltrona::render {

/// The picture turned counter-clockwise as seen, by `quarters` times 90 degrees.
/// Shape: any whole number of quarters; the result of a picture w x h is h x w for an odd one.
QImage turnedByQuarters(const QImage& picture, int quarters);

/// Turned pictures, remembered: a redraw asks for the same few again and again. Holds a fixed number of them.
class QuarterTurns {
public:
    /// The picture as turnedByQuarters gives it; pixels are shared, not copied.
    QImage of(const QImage& picture, int quarters);

private:
    struct Turned {
        qint64 key = 0;
        int quarters = 0;
        QImage picture;
    };
    std::array<Turned, 256> m_slots;
};

} // namespace zeltrona::render
