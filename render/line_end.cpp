#include "render/line_end.h"

#include "document/number_text.h"
#include "render/line_style.h"

#include <cmath>

namespace zeltrona::render {

using document::PointF;

namespace {

constexpr int kEndLength = 6;

/// The last stretch of a line; `to` is where an arrow's tip is.
struct Stretch {
    PointF from;
    PointF to;
};

struct Offset {
    double x = 0;
    double y = 0;
};

/// How much wider than half of 6 the arrow is, and how far its tip moves on.
struct ArrowShape {
    bool overBothLines = false;
    int halfWidth = 3;
    int lineWidth = 1;
};

PointI rounded(double x, double y) {
    return {document::roundToInt32(x), document::roundToInt32(y)};
}

float single(double value) {
    return static_cast<float>(value);
}

double slopeOf(const Stretch& s) {
    return std::atan(
        std::abs((static_cast<double>(s.to.y) - s.from.y) / (static_cast<double>(s.to.x) - s.from.x)));
}

/// `length` across a slope, both parts positive.
Offset across(double slope, int length) {
    const double turned = 3.14 / 2 - slope;
    return {length * std::cos(turned), length * std::sin(turned)};
}

void addBar(LineDrawing& out, const Stretch& s) {
    const PointF end = s.to;
    PointF a;
    PointF b;
    if (s.from.y == s.to.y) {
        a = {end.x, end.y - kEndLength};
        b = {end.x, end.y + kEndLength};
    } else if (s.from.x == s.to.x) {
        a = {end.x - kEndLength, end.y};
        b = {end.x + kEndLength, end.y};
    } else {
        const Offset by = across(slopeOf(s), kEndLength);
        const double side = runsAlongFalling(s.from, s.to) ? -1 : 1;
        a = {single(end.x - side * by.x), single(end.y - by.y)};
        b = {single(end.x + side * by.x), single(end.y + by.y)};
    }
    out.primitives.push_back(SegmentPrimitive{a, b, out.pen.drawWidth, out.pen.foreColor});
}

std::array<PointI, 3> levelArrow(Stretch s, const ArrowShape& shape) {
    const int ahead = s.to.x > s.from.x ? 1 : -1;
    if (shape.overBothLines) {
        s.to.x = single(s.to.x + 3.0 * ahead);
        s.to.y = single(static_cast<double>(s.to.y) + shape.lineWidth);
    }
    const double x = s.to.x;
    const double y = s.to.y;
    return {rounded(x, y), rounded(x - kEndLength * ahead, y + shape.halfWidth),
            rounded(x - kEndLength * ahead, y - shape.halfWidth)};
}

std::array<PointI, 3> uprightArrow(Stretch s, const ArrowShape& shape) {
    const int ahead = s.to.y > s.from.y ? 1 : -1;
    if (shape.overBothLines) {
        s.to.y = single(s.to.y + 3.0 * ahead);
        s.to.x = single(static_cast<double>(s.to.x) + shape.lineWidth);
    }
    const double x = s.to.x;
    const double y = s.to.y;
    return {rounded(x, y), rounded(x + shape.halfWidth, y - kEndLength * ahead),
            rounded(x - shape.halfWidth, y - kEndLength * ahead)};
}

std::array<PointI, 3> slantedArrow(Stretch s, const ArrowShape& shape) {
    const double slope = slopeOf(s);
    const double aheadX = (s.from.x < s.to.x ? kEndLength : -kEndLength) * std::cos(slope);
    const double aheadY = (s.from.y < s.to.y ? kEndLength : -kEndLength) * std::sin(slope);
    PointF base = s.to;
    if (shape.overBothLines) {
        s.to = {single(s.to.x + aheadX), single(s.to.y + aheadY)};
    } else {
        base = {single(base.x - aheadX), single(base.y - aheadY)};
    }
    if (base.x == s.from.x) {
        base.x = s.from.x + 1;
    }
    const Offset by = across(slopeOf(s), shape.halfWidth);
    const double side = runsAlongFalling(s.from, s.to) ? -1 : 1;
    return {rounded(s.to.x, s.to.y), rounded(base.x - side * by.x, base.y - by.y),
            rounded(base.x + side * by.x, base.y + by.y)};
}

void addArrow(LineDrawing& out, const Stretch& s, const ArrowShape& shape) {
    std::array<PointI, 3> points;
    if (s.from.y == s.to.y) {
        points = levelArrow(s, shape);
    } else if (s.from.x == s.to.x) {
        points = uprightArrow(s, shape);
    } else {
        points = slantedArrow(s, shape);
    }
    out.primitives.push_back(
        PolygonPrimitive{points, out.pen.drawWidth, out.pen.foreColor, out.pen.fillColor});
}

} // namespace

void drawLineEnd(LineDrawing& out, float x1, float y1, float x2, float y2, const LineLook& look, int style) {
    const LinePen before = out.pen;
    out.pen.foreColor = look.color;
    out.pen.fillColor = look.color;
    out.pen.fillStyle = FillStyle::Solid;
    const Stretch stretch{{x1, y1}, {x2, y2}};
    if (style == kBarStyle) {
        addBar(out, stretch);
    } else {
        const bool isDouble = style == kDoubleStyle;
        addArrow(out, stretch, {isDouble, isDouble ? look.lineWidth + 3 : 3, look.lineWidth});
    }
    out.pen.foreColor = before.foreColor;
    out.pen.fillStyle = before.fillStyle;
}

} // namespace zeltrona::render
