#include "render/label.h"

#include "document/number_text.h"

namespace zeltrona::render {

namespace {

/// Half of the measure before the middle, rounded as all places are.
float startOf(int middle, int measure) {
    return static_cast<float>(document::roundToInt32(middle - measure / 2.0));
}

} // namespace

void printLabel(BoardSurface& surface, const QString& text, Color color, PointI middle) {
    if (text.isEmpty()) {
        return;
    }
    const StateKeeper keeper(surface);
    surface.state.font = {QStringLiteral("Arial"), 8, true};
    surface.state.foreColor = color;
    surface.state.currentX = startOf(middle.x, surface.textWidth(text));
    surface.state.currentY = startOf(middle.y, surface.textHeight(text));
    surface.print(text);
}

} // namespace zeltrona::render
