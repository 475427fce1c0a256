#pragma once

#include "render/line_geometry.h"

#include <gtest/gtest.h>
#include <ostream>

namespace zeltrona::document {

inline void PrintTo(const PointF& p, std::ostream* os) {
    *os << "(" << p.x << ", " << p.y << ")";
}

} // namespace zeltrona::document

namespace zeltrona::render {

inline void PrintTo(const PointI& p, std::ostream* os) {
    *os << "(" << p.x << ", " << p.y << ")";
}

inline void PrintTo(const SegmentPrimitive& s, std::ostream* os) {
    *os << "segment ";
    PrintTo(s.from, os);
    PrintTo(s.to, os);
    *os << " width " << s.width << " color " << s.color;
}

inline constexpr document::Color kRed = 255;
inline constexpr ClipBox kBoard{0, 0, 363, 332};

enum class Shape { Straight, Curved };

inline document::LineRec lineOf(int style, Shape shape, std::vector<document::PointF> pts,
                                document::Color color = kRed) {
    return {static_cast<std::uint8_t>(style), color, shape == Shape::Curved, std::move(pts)};
}

/// All lines on a fresh surface, at `lineWidth`, with a pointer for the one under construction.
struct Painting {
    std::vector<document::LineRec> lines{};
    std::int16_t lineWidth = 1;
    std::int16_t editLineIndex = -1;
    document::PointF pointer{};
    ClipBox box = kBoard;
};

inline LineDrawing painted(const Painting& p, LinePen pen = {}) {
    LineDrawing out;
    out.pen = pen;
    drawPaths(out, {p.lines, p.lineWidth, p.editLineIndex, p.box}, p.pointer.x, p.pointer.y);
    return out;
}

template<typename T> std::vector<T> allOf(const LineDrawing& drawing) {
    std::vector<T> found;
    for (const LinePrimitive& primitive : drawing.primitives) {
        if (const T* one = std::get_if<T>(&primitive)) {
            found.push_back(*one);
        }
    }
    return found;
}

/// The kinds in painting order: s segment, a arc, p polygon, b Bezier array.
inline std::string kindsOf(const LineDrawing& drawing) {
    std::string kinds;
    for (const LinePrimitive& primitive : drawing.primitives) {
        kinds += "sapb"[primitive.index()];
    }
    return kinds;
}

inline void expectNear(document::PointF actual, document::PointF expected, double tolerance = 0.001) {
    EXPECT_NEAR(actual.x, expected.x, tolerance);
    EXPECT_NEAR(actual.y, expected.y, tolerance);
}

} // namespace zeltrona::render
