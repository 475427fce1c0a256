#include "render/quarter_turns.h"

namespace zeltrona::render {

namespace {

int foldedQuarters(int quarters) {
    return (quarters % 4 + 4) % 4;
}

QImage turnedOnce(const QImage& picture) {
    QImage turned(picture.height(), picture.width(), QImage::Format_RGB32);
    for (int y = 0; y < turned.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(turned.scanLine(y));
        for (int x = 0; x < turned.width(); ++x) {
            row[x] = picture.pixel(picture.width() - 1 - y, x);
        }
    }
    return turned;
}

} // namespace

QImage turnedByQuarters(const QImage& picture, int quarters) {
    QImage turned = picture.convertToFormat(QImage::Format_RGB32);
    for (int i = 0; i < foldedQuarters(quarters); ++i) {
        turned = turnedOnce(turned);
    }
    return turned;
}

QImage QuarterTurns::of(const QImage& picture, int quarters) {
    const int turns = foldedQuarters(quarters);
    if (turns == 0 || picture.isNull()) {
        return picture;
    }
    // The upper half of a key counts pictures in the order of their making, so those of one list fall side by
    // side.
    const qint64 key = picture.cacheKey();
    Turned& slot =
        m_slots[(static_cast<std::size_t>(key >> 32) * 4 + static_cast<std::size_t>(turns)) % m_slots.size()];
    if (slot.key != key || slot.quarters != turns) {
        slot = {key, turns, turnedByQuarters(picture, turns)};
    }
    return slot.picture;
}

} // namespace zeltrona::render
