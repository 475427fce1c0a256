#include "render/redraw.h"
#include "tests/render/golden.h"

namespace zeltrona::render {
namespace {

using document::LineRec;
using document::PointF;

constexpr Color kBlue = 0xC04000;

/// A white surface with the lines of one frame on it.
struct Inked {
    explicit Inked(std::vector<LineRec> lines, std::int16_t lineWidth = 1, int width = 120, int height = 80)
        : pic(width, height) {
        frame.lines = std::move(lines);
        session.lineWidth = lineWidth;
        pic.cls();
    }

    void draw(float pointerX = 0, float pointerY = 0) {
        Board board{pic, art};
        drawPaths(board, {session, frame, editLineIndex}, pointerX, pointerY);
    }

    BoardSurface pic;
    BoardArt art;
    document::Session session;
    document::FrameRecords frame;
    std::int16_t editLineIndex = -1;
};

LineRec lineOf(int style, bool curved, std::vector<PointF> pts, Color color = kBlue) {
    return {static_cast<std::uint8_t>(style), color, curved, std::move(pts)};
}

TEST(PathsInk, PaintsBodyAndEndInTheLinesColour) {
    Inked inked({lineOf(0, false, {{10, 40}, {60, 40}})});
    inked.draw();
    EXPECT_EQ(inked.pic.point(20, 40), kBlue);
    EXPECT_EQ(inked.pic.point(55, 42), kBlue); // inside the arrow
    EXPECT_EQ(inked.pic.point(20, 41), 0xFFFFFF);
}

TEST(PathsInk, PutsTheWaveOnTheStatedSides) {
    Inked inked({lineOf(2, false, {{10, 40}, {60, 40}})});
    inked.draw();
    // The first half circle rises over its stretch, the second hangs under its own.
    const auto hasInk = [&inked](int left, int right, int row) {
        for (int x = left; x <= right; ++x) {
            if (inked.pic.point(x, row) == kBlue) {
                return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(hasInk(11, 14, 38));
    EXPECT_FALSE(hasInk(11, 14, 42));
    EXPECT_TRUE(hasInk(16, 19, 42));
    EXPECT_FALSE(hasInk(16, 19, 38));
}

TEST(PathsInk, LeavesTheSurfacesPenAsItWasButForTheFillColour) {
    Inked inked({lineOf(4, true, {{10, 10}, {60, 10}, {60, 60}}), lineOf(2, false, {{10, 40}, {60, 40}})}, 3);
    inked.pic.state.drawWidth = 2;
    inked.pic.state.foreColor = 0x112233;
    inked.pic.state.fillStyle = FillStyle::Transparent;
    inked.draw();
    EXPECT_EQ(inked.pic.state.drawWidth, 2);
    EXPECT_EQ(inked.pic.state.foreColor, 0x112233);
    EXPECT_EQ(inked.pic.state.fillStyle, FillStyle::Transparent);
    EXPECT_EQ(inked.pic.state.fillColor, kBlue);
}

TEST(PathsInk, KeepsTheWidthThatADashOfNoLengthLeaves) {
    Inked inked({lineOf(1, false, {{10, 40}, {10, 40}})}, 3);
    inked.draw();
    EXPECT_EQ(inked.pic.state.drawWidth, 3);
}

TEST(PathsInk, KeepsThePenThatACurveOfOnePointLeaves) {
    Inked inked({lineOf(1, true, {{10, 40}})}, 3);
    inked.draw();
    EXPECT_EQ(inked.pic.state.drawWidth, 3);
    EXPECT_EQ(inked.pic.state.foreColor, kBlue);
}

TEST(PathsInk, DrawsTheBandOfALineUnderConstruction) {
    Inked inked({lineOf(0, false, {{10, 40}})});
    inked.editLineIndex = 0;
    inked.draw(100, 40);
    EXPECT_EQ(inked.pic.point(98, 40), kBlue);
}

TEST(PathsInk, FillsItsArrowOnASurfaceThatFillsNothing) {
    Inked inked({lineOf(0, false, {{10, 40}, {60, 40}})});
    inked.pic.state.fillStyle = FillStyle::Transparent;
    inked.draw();
    EXPECT_EQ(inked.pic.point(56, 41), kBlue);
}

/// One picture a style: straight lines in every direction, then curves, at widths 1 to 3 from left to right.
QImage sampleOf(int style) {
    BoardSurface sheet(480, 260);
    sheet.cls();
    BoardArt art;
    Board board{sheet, art};
    for (int width = 1; width <= 3; ++width) {
        document::Session session;
        session.lineWidth = static_cast<std::int16_t>(width);
        document::FrameRecords frame;
        const float x = static_cast<float>(width - 1) * 160;
        frame.lines = {lineOf(style, false, {{x + 75, 60}, {x + 130, 60}}),
                       lineOf(style, false, {{x + 65, 60}, {x + 10, 60}}),
                       lineOf(style, false, {{x + 70, 65}, {x + 70, 115}}),
                       lineOf(style, false, {{x + 70, 55}, {x + 70, 5}}),
                       lineOf(style, false, {{x + 76, 66}, {x + 110, 110}}),
                       lineOf(style, false, {{x + 64, 54}, {x + 20, 20}}),
                       lineOf(style, false, {{x + 76, 54}, {x + 140, 15}}),
                       lineOf(style, false, {{x + 64, 66}, {x + 30, 110}}),
                       lineOf(style, false, {{x + 10, 130}, {x + 60, 150}, {x + 120, 130}, {x + 148, 130}}),
                       lineOf(style, true, {{x + 15, 170}, {x + 70, 120}, {x + 140, 165}}),
                       lineOf(style, true,
                              {{x + 15, 200}, {x + 40, 160}, {x + 80, 195}, {x + 120, 230}, {x + 145, 180}}),
                       lineOf(style, true, {{x + 15, 250}, {x + 20, 200}, {x + 70, 240}, {x + 140, 245}})};
        drawPaths(board, {session, frame}, 0, 0);
    }
    return sheet.image();
}

TEST(PathsInkGolden, Cut) {
    EXPECT_TRUE(looksLikeGolden(sampleOf(0), "line_cut"));
}
TEST(PathsInkGolden, Pass) {
    EXPECT_TRUE(looksLikeGolden(sampleOf(1), "line_pass"));
}
TEST(PathsInkGolden, Dribble) {
    EXPECT_TRUE(looksLikeGolden(sampleOf(2), "line_dribble"));
}
TEST(PathsInkGolden, Screen) {
    EXPECT_TRUE(looksLikeGolden(sampleOf(3), "line_screen"));
}
TEST(PathsInkGolden, Double) {
    EXPECT_TRUE(looksLikeGolden(sampleOf(4), "line_double"));
}

} // namespace
} // namespace zeltrona::render
