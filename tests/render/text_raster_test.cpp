#include "render/board_surface.h"
#include "tests/render/board_fixture.h"

#include <QFontInfo>

#include <gtest/gtest.h>

namespace zeltrona::render {
namespace {

SurfaceFont sized(int points) {
    SurfaceFont font;
    font.size = points;
    return font;
}

/// A surface with the text printed in red at (30, 40).
BoardSurface printed(const QString& text, const SurfaceFont& font) {
    BoardSurface surface(300, 200);
    surface.state.font = font;
    surface.state.foreColor = kRed;
    surface.state.currentX = 30;
    surface.state.currentY = 40;
    surface.print(text);
    return surface;
}

TEST(SurfaceFont, PointsAreNinetySixToTheInch) {
    EXPECT_EQ(pixelSizeOf(sized(8)), 11);
    EXPECT_EQ(pixelSizeOf(sized(9)), 12);
    EXPECT_EQ(pixelSizeOf(sized(12)), 16);
    EXPECT_EQ(pixelSizeOf(sized(72)), 96);
}

TEST(SurfaceFont, SizeOfZeroOrBelowIsThatOfAnUnsetOne) {
    EXPECT_EQ(pixelSizeOf(sized(0)), 11);
    EXPECT_EQ(pixelSizeOf(sized(-5)), 11);
}

TEST(SurfaceFont, ArialIsFoundOrItsMetricTwin) {
    const QString family = QFontInfo(toolkitFontOf({})).family();
    EXPECT_TRUE(family.contains(QLatin1String("Arial")) || family.contains(QLatin1String("Liberation Sans")))
        << family.toStdString();
}

TEST(Text, IsDrawnOrNotPixelByPixel) {
    for (const int size : {8, 14, 40, 100}) {
        const BoardSurface surface = printed(QStringLiteral("Ag8"), sized(size));
        EXPECT_GT(countOf(surface, kRed), 10) << size;
        EXPECT_EQ(countOf(surface, kRed) + countOf(surface, kWhite), 300 * 200) << size;
    }
}

TEST(Text, StandsInItsBlock) {
    const BoardSurface surface = printed(QStringLiteral("HHH"), sized(12));
    const QRect ink = boundsOfOther(surface, kWhite);
    const QRect block(30, 40, surface.textWidth(QStringLiteral("HHH")),
                      surface.textHeight(QStringLiteral("HHH")));
    EXPECT_TRUE(block.contains(ink));
    EXPECT_NEAR(ink.height(), 16 * 0.716, 1) << "height of a capital letter of Arial";
    EXPECT_NEAR(block.width(), 3 * 16 * 0.722, 2);
}

TEST(Text, OfSeveralLinesIsCountedAndPrintedFromTheTop) {
    BoardSurface surface(10, 10);
    const int one = surface.textHeight(QStringLiteral("H"));
    EXPECT_EQ(surface.textHeight(QStringLiteral("H\nH")), 2 * one);
    EXPECT_EQ(surface.textHeight(QStringLiteral("H\r\nH\rH")), 3 * one);
    EXPECT_EQ(surface.textHeight(QString()), one);
    EXPECT_EQ(surface.textWidth(QStringLiteral("H\nHHH\nHH")), surface.textWidth(QStringLiteral("HHH")));
    const QRect first = boundsOfOther(printed(QStringLiteral("H"), {}), kWhite);
    const QRect both = boundsOfOther(printed(QStringLiteral("H\nH"), {}), kWhite);
    EXPECT_EQ(both.top(), first.top());
    EXPECT_EQ(both.bottom(), first.bottom() + one);
    EXPECT_EQ(both.left(), first.left());
}

TEST(Text, WidthGrowsWithEachLetterAndNotWithTheScreen) {
    BoardSurface surface(10, 10);
    EXPECT_EQ(surface.textWidth(QString()), 0);
    EXPECT_GT(surface.textWidth(QStringLiteral("12")), surface.textWidth(QStringLiteral("1")));
}

TEST(Text, StylesShow) {
    const int plain = countOf(printed(QStringLiteral("Horns"), sized(14)), kRed);
    SurfaceFont font = sized(14);
    font.bold = true;
    EXPECT_GT(countOf(printed(QStringLiteral("Horns"), font), kRed), plain);
    font = sized(14);
    font.underline = true;
    EXPECT_GT(countOf(printed(QStringLiteral("Horns"), font), kRed), plain + 20);
    font = sized(14);
    font.strikethrough = true;
    EXPECT_GT(countOf(printed(QStringLiteral("Horns"), font), kRed), plain + 10);
    font = sized(14);
    font.italic = true;
    EXPECT_NE(printed(QStringLiteral("Horns"), font).image(),
              printed(QStringLiteral("Horns"), sized(14)).image());
}

TEST(Text, IsClippedAtEveryEdge) {
    BoardSurface surface(20, 12);
    surface.state.foreColor = kRed;
    for (const float place : {-6.0F, 15.0F, -1e9F, 1e9F, 2147483647.0F}) {
        surface.state.currentX = place;
        surface.state.currentY = place > 0 ? 6 : -6;
        surface.print(QStringLiteral("WWWW"));
    }
    EXPECT_GT(countOf(surface, kRed), 0);
}

TEST(Text, OfAHugeFontShowsThePartThatFallsOnTheSurface) {
    SurfaceFont font = sized(900);
    BoardSurface surface(200, 150);
    surface.state.font = font;
    surface.state.foreColor = kRed;
    surface.state.currentX = -300;
    surface.state.currentY = -500;
    surface.print(QStringLiteral("HHHH"));
    EXPECT_GT(countOf(surface, kRed), 200);
    font.size = 32767;
    surface.state.font = font;
    surface.print(QStringLiteral("HHHH"));
    EXPECT_GT(surface.textHeight(QStringLiteral("H")), 16000);
}

TEST(Text, OfALargeFontIsTheSameInPartsAsInWhole) {
    SurfaceFont font = sized(200);
    BoardSurface whole(400, 400);
    BoardSurface part(100, 100);
    for (BoardSurface* surface : {&whole, &part}) {
        surface->state.font = font;
    }
    whole.print(QStringLiteral("B"));
    part.state.currentX = -60;
    part.state.currentY = -80;
    part.print(QStringLiteral("B"));
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            ASSERT_EQ(part.point(x, y), whole.point(x + 60, y + 80));
        }
    }
}

TEST(Text, OfAnUnknownFontIsPrintedInTheNearestOne) {
    SurfaceFont font;
    font.name = QStringLiteral("No such font anywhere");
    EXPECT_GT(countOf(printed(QStringLiteral("Horns"), font), kRed), 10);
    font.name.clear();
    EXPECT_GT(countOf(printed(QStringLiteral("Horns"), font), kRed), 10);
}

TEST(Text, RememberedShapesAreTheSameAsFreshOnes) {
    BoardSurface surface(300, 200);
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 400; ++i) {
            surface.cls();
            surface.state.font = sized(8 + i % 3);
            surface.state.foreColor = kRed;
            surface.state.currentX = 30;
            surface.state.currentY = 40;
            surface.print(QString::number(i));
        }
    }
    EXPECT_EQ(surface.image(), printed(QStringLiteral("399"), sized(8)).image());
}

TEST(Text, OfMoreFontsThanAnyBoardHasIsPrintedInThoseThatAreThere) {
    BoardSurface surface(300, 200);
    const auto widthIn = [&surface](const QString& name) {
        surface.state.font = sized(20);
        surface.state.font.name = name;
        return surface.textWidth(QStringLiteral("Screen away"));
    };
    const int arial = widthIn(QStringLiteral("Arial"));
    const QString family = QFontInfo(QFont(QStringLiteral("monospace"))).family();
    BoardSurface fresh(300, 200);
    fresh.state.font = sized(20);
    fresh.state.font.name = family;
    const int wide = fresh.textWidth(QStringLiteral("Screen away"));
    for (int i = 0; i < 100; ++i) {
        EXPECT_GT(widthIn(QStringLiteral("No machine has font %1").arg(i)), 0);
    }
    EXPECT_EQ(widthIn(QStringLiteral("No machine has this one")), arial);
    EXPECT_EQ(widthIn(family), wide);
    EXPECT_EQ(widthIn(QStringLiteral("Arial")), arial);
}

TEST(Text, PrintLeavesThePlaceAndState) {
    BoardSurface surface(100, 100);
    const DrawingState before = surface.state;
    surface.print(QStringLiteral("Horns"));
    EXPECT_EQ(surface.state, before);
}

} // namespace
} // namespace zeltrona::render
