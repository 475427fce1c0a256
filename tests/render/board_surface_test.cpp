#include "render/board_surface.h"
#include "tests/render/board_fixture.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace zeltrona::render {
namespace {

QImage picture(int width, int height, QRgb color) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

TEST(BoardSurface, StartsWhiteWithABlackPenOfOneAndASolidFill) {
    const BoardSurface surface;
    EXPECT_EQ(surface.width(), 363);
    EXPECT_EQ(surface.height(), 332);
    EXPECT_EQ(countOf(surface, kWhite), 363 * 332);
    EXPECT_EQ(surface.state.drawWidth, 1);
    EXPECT_EQ(surface.state.foreColor, kBlack);
    EXPECT_EQ(surface.state.fillStyle, FillStyle::Solid);
    EXPECT_EQ(surface.image().format(), QImage::Format_RGB32);
}

TEST(BoardSurface, KeepsWhatIsDrawnUntilItIsCleared) {
    BoardSurface surface(10, 10);
    surface.pset(3, 4, kRed);
    surface.refresh();
    EXPECT_EQ(surface.point(3, 4), kRed);
    surface.cls();
    EXPECT_EQ(surface.point(3, 4), kWhite);
}

TEST(BoardSurface, ClearingFillsWithTheBackColorAndLaysThePicture) {
    BoardSurface surface(10, 10);
    surface.setBackColor(kBlue);
    EXPECT_EQ(countOf(surface, kBlue), 100);
    surface.setPicture(picture(6, 7, qRgb(0, 255, 0)));
    EXPECT_EQ(countOf(surface, kGreen), 42);
    EXPECT_EQ(countOf(surface, kBlue), 58);
    surface.line(0, 0, 9, 9, kRed);
    surface.cls();
    EXPECT_EQ(countOf(surface, kGreen), 42);
    surface.setPicture({});
    EXPECT_EQ(countOf(surface, kBlue), 100);
}

TEST(BoardSurface, PictureLargerThanItIsCutOff) {
    BoardSurface surface(10, 10);
    surface.setPicture(picture(40, 7, qRgb(0, 255, 0)));
    EXPECT_EQ(countOf(surface, kGreen), 70);
}

TEST(BoardSurface, NewSizeClearsAndTheSameSizeDoesNot) {
    BoardSurface surface(10, 10);
    surface.pset(1, 1, kRed);
    surface.resize(10, 10);
    EXPECT_EQ(surface.point(1, 1), kRed);
    surface.resize(12, 5);
    EXPECT_EQ(surface.width(), 12);
    EXPECT_EQ(surface.height(), 5);
    EXPECT_EQ(countOf(surface, kWhite), 60);
}

TEST(BoardSurface, ImageThatWasHandedOutIsNotDrawnOnAnyMore) {
    BoardSurface surface(10, 10);
    const QImage taken = surface.image();
    surface.line(0, 0, 9, 9, kRed);
    EXPECT_EQ(taken.pixel(5, 5), qRgb(255, 255, 255));
}

TEST(BoardSurface, RefreshTellsItsObserverOfTheFinishedPicture) {
    BoardSurface surface(10, 10);
    int told = 0;
    Color seen = 0;
    surface.setRefreshObserver([&] {
        ++told;
        seen = surface.point(2, 2);
    });
    surface.cls();
    surface.pset(2, 2, kGreen);
    EXPECT_EQ(told, 0);
    surface.refresh();
    EXPECT_EQ(told, 1);
    EXPECT_EQ(seen, kGreen);
}

TEST(BoardSurface, PointOutsideIsMinusOne) {
    const BoardSurface surface(10, 10);
    EXPECT_EQ(surface.point(-1, 0), -1);
    EXPECT_EQ(surface.point(0, 10), -1);
}

TEST(BoardSurface, PlacesAreRoundedHalfToEven) {
    BoardSurface surface(10, 10);
    surface.pset(0.5F, 1.5F, kRed);
    surface.pset(2.5F, 3.51F, kGreen);
    EXPECT_EQ(surface.point(0, 2), kRed);
    EXPECT_EQ(surface.point(2, 4), kGreen);
    surface.cls();
    surface.line(0.5F, 0.5F, 3.5F, 0.5F, kBlue);
    EXPECT_EQ(boundsOfOther(surface, kWhite), QRect(0, 0, 5, 1));
}

TEST(BoardSurface, PlacesPastThirtyTwoBitsWrapAndDoNotHang) {
    BoardSurface surface(10, 10);
    surface.pset(4294967296.0F, 3.0F, kRed);
    EXPECT_EQ(surface.point(0, 3), kRed) << "2^32 wraps to 0";
    surface.line(-1e9F, 5, 1e9F, 5, kGreen);
    EXPECT_EQ(surface.point(7, 5), kGreen);
    surface.line(3e38F, -3e38F, -3e38F, 3e38F, kBlue);
    surface.circle(2e9F, 2e9F, 1e9F, kBlue, true);
    surface.circle(3e38F, 5, 3e38F, kBlue, true);
    surface.arc(3e38F, -3e38F, 3e38, kBlue, 0, 3);
    surface.ellipse(-2000000000, -2000000000, 2000000000, 2000000000);
    EXPECT_EQ(surface.point(5, 5), kBlack);
}

TEST(BoardSurface, DotIsAsWideAsThePen) {
    BoardSurface surface(20, 20);
    surface.state.drawWidth = 3;
    surface.pset(10, 10, kRed);
    EXPECT_EQ(boundsOfOther(surface, kWhite), QRect(9, 9, 3, 3));
}

TEST(BoardSurface, LineUsesItsOwnColourAndThePen) {
    BoardSurface surface(20, 20);
    surface.state.foreColor = kGreen;
    surface.state.drawWidth = 2;
    surface.line(5, 10, 15, 10, kRed);
    EXPECT_EQ(countOf(surface, kGreen), 0);
    EXPECT_EQ(surface.point(10, 10), kRed);
    EXPECT_EQ(surface.point(10, 9), kRed);
    EXPECT_EQ(surface.point(10, 8), kWhite);
    EXPECT_EQ(surface.point(10, 11), kWhite);
}

TEST(BoardSurface, CircleIsTwoRadiiAcrossAroundItsPlace) {
    BoardSurface surface(26, 26);
    surface.state.fillColor = kBlue;
    surface.circle(13, 13, 7, kRed, true);
    EXPECT_EQ(boundsOfOther(surface, kWhite), QRect(6, 6, 14, 14));
    EXPECT_EQ(surface.point(13, 13), kBlue);
    EXPECT_EQ(surface.point(6, 13), kRed);
    EXPECT_EQ(surface.point(19, 13), kRed);
}

TEST(BoardSurface, CircleThatIsNotFilledLeavesItsInside) {
    BoardSurface surface(26, 26);
    surface.circle(13, 13, 9, kRed, false);
    EXPECT_EQ(surface.point(13, 13), kWhite);
    EXPECT_EQ(surface.point(4, 13), kRed);
}

TEST(BoardSurface, ArcGoesCounterClockwiseAsSeen) {
    BoardSurface surface(26, 26);
    surface.arc(13, 13, 10, kRed, 0, std::numbers::pi / 2);
    EXPECT_EQ(boundsOfOther(surface, kWhite), QRect(13, 3, 11, 11)) << "the upper right quarter";
}

TEST(BoardSurface, EllipseTakesItsCornersInAnyOrderAndLeavesTheFarOnesOut) {
    for (const bool swapped : {false, true}) {
        BoardSurface surface(40, 40);
        surface.state.foreColor = kRed;
        surface.state.fillColor = kBlue;
        swapped ? surface.ellipse(30, 25, 10, 5) : surface.ellipse(10, 5, 30, 25);
        EXPECT_EQ(boundsOfOther(surface, kWhite), QRect(10, 5, 20, 20));
        EXPECT_EQ(surface.point(20, 15), kBlue);
        EXPECT_EQ(surface.point(10, 15), kRed);
    }
}

TEST(BoardSurface, TransparentFillStyleLeavesTheInside) {
    BoardSurface surface(40, 40);
    surface.state.fillStyle = FillStyle::Transparent;
    surface.state.fillColor = kBlue;
    surface.ellipse(10, 5, 30, 25);
    surface.polygon(std::array<PointI, 3>{{{5, 38}, {35, 38}, {20, 28}}});
    EXPECT_EQ(countOf(surface, kBlue), 0);
    EXPECT_EQ(surface.point(20, 15), kWhite);
    EXPECT_EQ(surface.point(20, 35), kWhite);
}

TEST(BoardSurface, PolygonIsClosedOutlinedAndFilled) {
    BoardSurface surface(40, 40);
    surface.state.foreColor = kRed;
    surface.state.fillColor = kBlue;
    surface.polygon(std::array<PointI, 3>{{{5, 30}, {35, 30}, {20, 5}}});
    EXPECT_EQ(surface.point(20, 20), kBlue);
    EXPECT_EQ(surface.point(20, 30), kRed);
    EXPECT_EQ(surface.point(20, 5), kRed);
    EXPECT_EQ(surface.point(5, 30), kRed);
}

TEST(BoardSurface, BezierIsDrawnInTheForeColorWithThePen) {
    BoardSurface surface(40, 40);
    surface.state.foreColor = kRed;
    surface.state.drawWidth = 3;
    surface.polyBezier(std::array<PointI, 4>{{{5, 20}, {15, 20}, {25, 20}, {35, 20}}});
    EXPECT_EQ(boundsOfOther(surface, kWhite), QRect(4, 19, 33, 3));
    EXPECT_EQ(countOf(surface, kRed), 33 * 3);
}

TEST(BoardSurface, CopiesAPartOfAPictureByARasterOperation) {
    BoardSurface surface(10, 10);
    surface.setBackColor(0x00F0F0);
    QImage source = picture(8, 8, qRgb(255, 255, 255));
    source.setPixel(3, 3, qRgb(0x30, 0x30, 0x30));
    surface.bitBlt(5, 5, 2, 2, source, 3, 3, RasterOp::SrcAnd);
    EXPECT_EQ(surface.point(5, 5), 0x003030);
    EXPECT_EQ(surface.point(6, 6), 0x00F0F0);
    surface.bitBlt(5, 5, 2, 2, source, 3, 3, RasterOp::MergePaint);
    EXPECT_EQ(surface.point(5, 5), 0xCFFFFF);
    EXPECT_EQ(surface.point(6, 6), 0x00F0F0);
    surface.bitBlt(0, 0, 10, 10, {}, 0, 0, RasterOp::DstInvert);
    EXPECT_EQ(surface.point(5, 5), 0x300000);
    EXPECT_EQ(surface.point(0, 0), 0xFF0F0F);
}

TEST(BoardSurface, CopiesFromPicturesOfOneBit) {
    BoardSurface surface(10, 10);
    surface.setBackColor(kBlue);
    QImage mono(8, 8, QImage::Format_Mono);
    mono.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    mono.fill(1);
    mono.setPixel(2, 2, 0);
    surface.bitBlt(0, 0, 8, 8, mono, 0, 0, RasterOp::MergePaint);
    EXPECT_EQ(surface.point(2, 2), kWhite);
    EXPECT_EQ(countOf(surface, kWhite), 1);
}

TEST(BoardSurface, CopyFromNoPictureChangesNothing) {
    BoardSurface surface(10, 10);
    surface.bitBlt(0, 0, 10, 10, {}, 0, 0, RasterOp::SrcCopy);
    surface.bitBlt(0, 0, 10, 10, {}, 0, 0, RasterOp::SrcAnd);
    EXPECT_EQ(countOf(surface, kWhite), 100);
}

TEST(BoardSurface, CopyBeyondItsEdgesIsCut) {
    BoardSurface surface(10, 10);
    const QImage source = picture(26, 26, qRgb(255, 0, 0));
    surface.bitBlt(-20, -20, 26, 26, source, 0, 0, RasterOp::SrcCopy);
    EXPECT_EQ(boundsOfOther(surface, kWhite), QRect(0, 0, 6, 6));
    surface.bitBlt(2147483647, -2147483647 - 1, 26, 26, source, 0, 0, RasterOp::SrcCopy);
    EXPECT_EQ(countOf(surface, kRed), 36);
}

TEST(BoardSurface, SpriteOfShapesThatDifferInSizePaintsNothing) {
    BoardSurface pic(4, 4);
    QImage small(2, 2, QImage::Format_RGB32);
    QImage large(3, 3, QImage::Format_RGB32);
    small.fill(Qt::black);
    large.fill(Qt::black);
    pic.paintSprite(0, 0, {small, 255}, {large, 255}, large);
    EXPECT_EQ(pic.point(0, 0), 0xFFFFFF);
    pic.paintSprite(0, 0, {large, 255}, {large, 128}, large);
    EXPECT_EQ(pic.point(0, 0), 128);
}

TEST(BoardSurface, StateKeeperPutsBackWhatWasChanged) {
    BoardSurface surface(10, 10);
    const DrawingState before = surface.state;
    {
        const StateKeeper keeper(surface);
        surface.state.drawWidth = 7;
        surface.state.font.bold = true;
        surface.state.currentX = 4;
    }
    EXPECT_EQ(surface.state, before);
}

} // namespace
} // namespace zeltrona::render
