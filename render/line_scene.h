#pragma once

#include "render/line_geometry.h"

namespace zeltrona::render {

// Small questions that straight and curved lines both ask.

inline const document::LineRec& lineAt(const LineScene& scene, int index) {
    return scene.lines[static_cast<std::size_t>(index)];
}

/// A width that no pen can have is passed over.
inline void setDrawWidth(LinePen& pen, int width) {
    if (width >= 1) {
        pen.drawWidth = width;
    }
}

/// Where a stretch may lie and still show: the half of the pen reaches inside, and a half wave bulges.
inline ClipBox seenBox(const LineScene& scene, const LinePen& pen) {
    return grown(scene.box, pen.drawWidth / 2.0 + 8);
}

} // namespace zeltrona::render
