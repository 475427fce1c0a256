#include "render/board_surface.h"
#include "tests/render/golden.h"

#include <array>
#include <gtest/gtest.h>

namespace zeltrona::render {
namespace {

void drawRow(BoardSurface& surface, int top, int pen) {
    const auto y = static_cast<float>(top);
    surface.state.drawWidth = pen;
    surface.state.foreColor = 0;
    surface.state.fillColor = 0x00C0FF;
    surface.line(5, y + 5, 45, y + 25, 0);
    surface.line(5, y + 30, 45, y + 30, 0);
    surface.circle(70, y + 20, 15, 0x0000C0, true);
    surface.circle(105, y + 20, 15, 0x0000C0, false);
    surface.ellipse(130, top + 5, 190, top + 35);
    for (int i = 0; i < 8; ++i) {
        const bool up = i % 2 == 0;
        surface.arc(202.5F + static_cast<float>(i) * 5, y + 20, 2.5, 0, up ? 0 : 3.141, up ? 3.141 : 0);
    }
    surface.polygon(std::array<PointI, 3>{{{280, top + 20}, {260, top + 30}, {260, top + 10}}});
    surface.polyBezier(std::array<PointI, 4>{{{295, top + 35}, {310, top}, {330, top + 40}, {345, top + 5}}});
    surface.pset(355, y + 20, 0xC00000);
}

TEST(Shapes, OfEachPenMatchTheirGoldenPicture) {
    BoardSurface surface(365, 165);
    for (int pen = 1; pen <= 4; ++pen) {
        drawRow(surface, (pen - 1) * 40, pen);
    }
    EXPECT_TRUE(looksLikeGolden(surface.image(), "shapes"));
}

} // namespace
} // namespace zeltrona::render
