#pragma once

#include "document/records.h"

#include <algorithm>
#include <limits>

namespace zeltrona::render {

/// The part of the plane whose dashes and waves are worth making, edges included. Everywhere when made
/// plainly.
struct ClipBox {
    double left = -std::numeric_limits<double>::infinity();
    double top = -std::numeric_limits<double>::infinity();
    double right = std::numeric_limits<double>::infinity();
    double bottom = std::numeric_limits<double>::infinity();
    friend bool operator==(const ClipBox&, const ClipBox&) = default;
};

inline ClipBox grown(const ClipBox& box, double by) {
    return {box.left - by, box.top - by, box.right + by, box.bottom + by};
}

inline bool isInside(const ClipBox& box, document::PointF p) {
    return p.x >= box.left && p.x <= box.right && p.y >= box.top && p.y <= box.bottom;
}

/// Whether the upright rectangle over two corners has a point in the box.
inline bool touches(const ClipBox& box, document::PointF a, document::PointF b) {
    return std::max(a.x, b.x) >= box.left && std::min(a.x, b.x) <= box.right && std::max(a.y, b.y) >= box.top
           && std::min(a.y, b.y) <= box.bottom;
}

} // namespace zeltrona::render
