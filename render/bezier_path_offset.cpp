#include "render/bezier_path.h"

namespace zeltrona::render {

namespace {

std::int16_t difference16(std::int32_t a, std::int32_t b) {
    return static_cast<std::int16_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

std::int32_t wrappedSum(std::int32_t a, int b) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

/// Where the points of one end of a cubic go.
struct Shift {
    int x = 0;
    int y = 0;
};

Shift shiftFor(PointI from, PointI to, int distance) {
    const int dx = difference16(to.x, from.x);
    const int dy = difference16(to.y, from.y);
    if (dx == 0) {
        return {-distance, 0};
    }
    if (dy == 0) {
        return {0, -distance};
    }
    return {(dx < 0) == (dy < 0) ? distance : -distance, -distance};
}

PointI moved(PointI point, Shift by) {
    return {wrappedSum(point.x, by.x), wrappedSum(point.y, by.y)};
}

} // namespace

void offsetBezierPath(std::span<const PointI> bezier, std::vector<PointI>& shifted, int lineWidth) {
    shifted.assign(bezier.begin(), bezier.end());
    for (std::size_t i = 0; i + 3 < bezier.size(); i += 3) {
        const Shift atStart = shiftFor(bezier[i], bezier[i + 1], lineWidth + 1);
        const Shift atEnd = shiftFor(bezier[i + 2], bezier[i + 3], lineWidth + 1);
        if (i == 0) {
            shifted[i] = moved(bezier[i], atStart);
        }
        shifted[i + 1] = moved(bezier[i + 1], atStart);
        shifted[i + 2] = moved(bezier[i + 2], atStart);
        shifted[i + 3] = moved(bezier[i + 3], atEnd);
    }
}

} // namespace zeltrona::render
