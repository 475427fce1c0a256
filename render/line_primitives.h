#pragma once

#include "document/records.h"
#include "render/drawing_basics.h"
#include "render/line_effort.h"

#include <array>
#include <variant>
#include <vector>

namespace zeltrona::render {

/// The drawing state that movement lines change on their surface.
struct LinePen {
    int drawWidth = 1;
    document::Color foreColor = 0;
    document::Color fillColor = 0;
    FillStyle fillStyle = FillStyle::Solid;
    DrawStyle drawStyle = DrawStyle::Solid;
    friend bool operator==(const LinePen&, const LinePen&) = default;
};

// What a movement line is made of. Units: board pixels, y down; `width` of the pen in pixels, at least 1.

struct SegmentPrimitive {
    document::PointF from;
    document::PointF to;
    int width = 1;
    document::Color color = 0;
    friend bool operator==(const SegmentPrimitive&, const SegmentPrimitive&) = default;
};

/// Part of a circle from `start` to `end`, radians, counter-clockwise as seen.
struct ArcPrimitive {
    document::PointF centre;
    double radius = 0;
    double start = 0;
    double end = 0;
    int width = 1;
    document::Color color = 0;
    friend bool operator==(const ArcPrimitive&, const ArcPrimitive&) = default;
};

/// A filled triangle, tip first, with the outline of the pen.
struct PolygonPrimitive {
    std::array<PointI, 3> points;
    int width = 1;
    document::Color color = 0;
    document::Color fill = 0;
    friend bool operator==(const PolygonPrimitive&, const PolygonPrimitive&) = default;
};

/// A start point and three points for each cubic.
struct BezierPrimitive {
    std::vector<PointI> points;
    int width = 1;
    document::Color color = 0;
    friend bool operator==(const BezierPrimitive&, const BezierPrimitive&) = default;
};

using LinePrimitive = std::variant<SegmentPrimitive, ArcPrimitive, PolygonPrimitive, BezierPrimitive>;

/// What a walk over movement lines gives: primitives in painting order, and the pen.
/// Reason: some lines end early and leave the pen as they set it, which later drawing on the surface shows.
///         So the pen goes in as it stands on the surface, and comes out as the surface keeps it.
struct LineDrawing {
    LinePen pen;
    LineEffort effort; ///< dashes, waves and curves that it can't pay any more are plain straight stretches
    std::vector<LinePrimitive> primitives;
};

} // namespace zeltrona::render
