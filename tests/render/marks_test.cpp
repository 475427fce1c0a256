#include "document/frame_records.h"
#include "render/marks.h"
#include "render/player_circle.h"
#include "tests/render/board_fixture.h"

#include <chrono>
#include <gtest/gtest.h>

namespace zeltrona::render {
namespace {

/// A state that no drawer would leave by chance.
DrawingState oddState() {
    DrawingState state;
    state.drawWidth = 5;
    state.foreColor = 0x112233;
    state.fillColor = 0x445566;
    state.font = {QStringLiteral("Courier"), 17, true, true, true, true, 77};
    return state;
}

bool isUntouched(const BoardSurface& surface) {
    return countOf(surface, kWhite) == surface.width() * surface.height();
}

TEST(Marks, EmptyStatePaintsNothingAndTouchesNoState) {
    TestBoard test;
    test.pic.state = oddState();
    std::vector<document::ShadowRec> shadows;
    std::vector<document::TriangleRec> triangles;
    std::vector<document::TxtPicRec> txtPics;
    std::vector<document::BallRec> balls;
    document::resetShadows(shadows);
    document::resetTriangles(triangles);
    document::resetTxtPics(txtPics);
    document::resetBalls(balls);
    drawShadows(test.board, shadows);
    drawTriangles(test.board, triangles);
    drawTextPictures(test.board, txtPics, 238);
    drawBalls(test.board, balls);
    EXPECT_TRUE(isUntouched(test.pic));
    EXPECT_EQ(test.pic.state, oddState());
}

TEST(Shadows, FillTheEllipseBetweenTheirCorners) {
    TestBoard test;
    drawShadows(test.board, {{40, 50, 80, 70, kBlue}});
    EXPECT_EQ(boundsOfOther(test.pic, kWhite), QRect(40, 50, 40, 20));
    EXPECT_EQ(test.pic.point(60, 60), kBlue);
    EXPECT_EQ(test.pic.point(40, 60), kBlue) << "outline and fill have one colour";
    EXPECT_EQ(test.pic.point(41, 51), kWhite);
}

TEST(Shadows, CornersMayComeInAnyOrder) {
    TestBoard test;
    drawShadows(test.board, {{80, 70, 40, 50, kBlue}});
    EXPECT_EQ(boundsOfOther(test.pic, kWhite), QRect(40, 50, 40, 20));
}

TEST(Shadows, AreOpaqueAndLieInOrder) {
    TestBoard test;
    test.pic.line(0, 60, 362, 60, kBlack);
    drawShadows(test.board, {{40, 50, 80, 70, kBlue}, {60, 50, 100, 70, kRed}});
    EXPECT_EQ(test.pic.point(50, 60), kBlue);
    EXPECT_EQ(test.pic.point(70, 60), kRed);
    EXPECT_EQ(test.pic.point(10, 60), kBlack);
}

TEST(Shadows, PlaceIsRoundedHalfToEven) {
    TestBoard test;
    drawShadows(test.board, {{40.5F, 51.5F, 80, 70, kBlue}});
    EXPECT_EQ(boundsOfOther(test.pic, kWhite), QRect(40, 52, 40, 18));
}

TEST(Shadows, PutTheColoursBack) {
    TestBoard test;
    test.pic.state = oddState();
    drawShadows(test.board, {{40, 50, 80, 70, kBlue}});
    EXPECT_EQ(test.pic.state, oddState());
}

TEST(Triangles, StandOnTheirLeftEndWithAPenOfTwo) {
    TestBoard test;
    drawTriangles(test.board, {{100, 100, kRed}});
    EXPECT_EQ(boundsOfOther(test.pic, kWhite), QRect(99, 87, 14, 14));
    EXPECT_EQ(test.pic.point(106, 100), kRed);
    EXPECT_EQ(test.pic.point(106, 99), kRed);
    EXPECT_EQ(test.pic.point(106, 88), kRed) << "the apex: 6 to the right and 12 above";
    EXPECT_EQ(test.pic.point(106, 96), kWhite) << "an outline";
}

TEST(Triangles, AreSymmetric) {
    TestBoard test;
    drawTriangles(test.board, {{100, 100, kRed}});
    for (int y = 80; y < 110; ++y) {
        for (int x = 0; x < 10; ++x) {
            EXPECT_EQ(test.pic.point(105 - x, y), test.pic.point(106 + x, y)) << x << ',' << y;
        }
    }
}

TEST(Triangles, HaveTheColourOfTheRecord) {
    TestBoard test;
    test.pic.state.foreColor = kGreen;
    drawTriangles(test.board, {{100, 100, kRed}, {200, 100, kBlue}});
    EXPECT_EQ(countOf(test.pic, kRed), countOf(test.pic, kBlue));
    EXPECT_EQ(countOf(test.pic, kGreen), 0);
}

TEST(Triangles, OneAtTheOriginWithAColourIsPainted) {
    TestBoard test;
    drawTriangles(test.board, {{0, 0, kRed}});
    EXPECT_GT(countOf(test.pic, kRed), 0);
}

TEST(Triangles, PutThePenBack) {
    TestBoard test;
    test.pic.state = oddState();
    drawTriangles(test.board, {{100, 100, kRed}});
    EXPECT_EQ(test.pic.state, oddState());
}

document::TxtPicRec text(const char* words, float x, float y, int size = 10) {
    document::TxtPicRec record;
    record.text = words;
    record.x = x;
    record.y = y;
    record.fontName = "Arial";
    record.fontSize = static_cast<std::int16_t>(size);
    record.color = kRed;
    return record;
}

TEST(TextPictures, HaveTheirLowerLeftCornerAtThePlace) {
    TestBoard test;
    drawTextPictures(test.board, {text("Horns", 100, 200)}, 238);
    test.pic.state.font.size = 10;
    const int height = test.pic.textHeight(QStringLiteral("Horns"));
    const QRect ink = boundsOfOther(test.pic, kWhite);
    EXPECT_TRUE(QRect(100, 200 - height, test.pic.textWidth(QStringLiteral("Horns")), height).contains(ink));
    EXPECT_GT(ink.bottom(), 200 - height / 2);
}

TEST(TextPictures, StayOnTheirLineInABiggerFont) {
    TestBoard small;
    TestBoard big;
    drawTextPictures(small.board, {text("H", 100, 200, 10)}, 238);
    drawTextPictures(big.board, {text("H", 100, 200, 40)}, 238);
    EXPECT_LT(boundsOfOther(big.pic, kWhite).top(), boundsOfOther(small.pic, kWhite).top());
    EXPECT_LT(boundsOfOther(big.pic, kWhite).bottom(), 200);
}

TEST(TextPictures, OfSeveralLinesEndAtThePlace) {
    TestBoard one;
    TestBoard two;
    drawTextPictures(one.board, {text("H", 100, 200)}, 238);
    drawTextPictures(two.board, {text("H\nH", 100, 200)}, 238);
    EXPECT_EQ(boundsOfOther(two.pic, kWhite).bottom(), boundsOfOther(one.pic, kWhite).bottom());
    EXPECT_LT(boundsOfOther(two.pic, kWhite).top(), boundsOfOther(one.pic, kWhite).top());
}

TEST(TextPictures, ShowEachStyleOfTheRecord) {
    TestBoard plain;
    drawTextPictures(plain.board, {text("Horns", 100, 200)}, 238);
    for (bool document::TxtPicRec::*style :
         {&document::TxtPicRec::bold, &document::TxtPicRec::italic, &document::TxtPicRec::underline,
          &document::TxtPicRec::strikethrough}) {
        TestBoard styled;
        document::TxtPicRec record = text("Horns", 100, 200);
        record.*style = true;
        drawTextPictures(styled.board, {record}, 238);
        EXPECT_NE(styled.pic.image(), plain.pic.image());
    }
}

TEST(TextPictures, AreReadInTheCharacterSet) {
    TestBoard central;
    TestBoard western;
    drawTextPictures(central.board, {text("\xE8\xF0", 100, 200)}, 238);
    drawTextPictures(western.board, {text("\xE8\xF0", 100, 200)}, 0);
    EXPECT_NE(central.pic.image(), western.pic.image());
    TestBoard unicode;
    unicode.pic.state.font.size = 10;
    unicode.pic.state.foreColor = kRed;
    unicode.pic.state.currentX = 100;
    unicode.pic.state.currentY =
        200 - static_cast<float>(unicode.pic.textHeight(QString::fromUtf8("\u010D\u0111")));
    unicode.pic.print(QString::fromUtf8("\u010D\u0111"));
    EXPECT_EQ(central.pic.image(), unicode.pic.image()) << "c with caron and d with stroke";
}

TEST(TextPictures, NearTheTopAreClipped) {
    TestBoard test;
    drawTextPictures(test.board, {text("HHH", 20, 8, 20)}, 238);
    EXPECT_EQ(boundsOfOther(test.pic, kWhite).top(), 0);
}

TEST(TextPictures, FontSizeZeroAndUnknownNameAreNoFault) {
    TestBoard test;
    document::TxtPicRec record = text("Horns", 100, 200, 0);
    record.fontName = "No such font";
    drawTextPictures(test.board, {record}, 238);
    EXPECT_GT(countOf(test.pic, kRed), 10);
}

TEST(TextPictures, PutTheFontBackButForTheCharacterSet) {
    TestBoard test;
    test.pic.state = oddState();
    drawTextPictures(test.board, {text("Horns", 100, 200)}, 204);
    DrawingState want = oddState();
    want.font.charset = 204;
    want.currentX = test.pic.state.currentX;
    want.currentY = test.pic.state.currentY;
    EXPECT_EQ(test.pic.state, want);
}

TEST(Balls, HaveTheirLowestPointAtThePlace) {
    TestBoard test;
    drawBalls(test.board, {{100, 100}});
    EXPECT_EQ(boundsOfOther(test.pic, kWhite), QRect(93, 86, 14, 14))
        << "the mask: 14 pixels around (100, 93), which is 7 above the place";
    EXPECT_EQ(test.pic.point(100, 93), 0x0080FF);
}

TEST(Balls, MaskCutsTheDiscOutOfTheBoard) {
    TestBoard test;
    test.pic.setBackColor(kGreen);
    drawBalls(test.board, {{100, 100}});
    EXPECT_EQ(test.pic.point(94, 93), kBlack) << "within the disc, beside the test art's ball";
    EXPECT_EQ(test.pic.point(93, 86), kGreen);
}

TEST(Balls, PlaceIsRoundedAfterTheSubtraction) {
    TestBoard test;
    drawBalls(test.board, {{100.5F, 100.5F}});
    EXPECT_EQ(boundsOfOther(test.pic, kWhite).topLeft(), QPoint(88 + 6, 80 + 6))
        << "87.5 becomes 88, where 100.5 would have become 100";
}

TEST(Balls, AtTheLeftEdgeAreCut) {
    TestBoard test;
    drawBalls(test.board, {{0, 100}});
    EXPECT_EQ(boundsOfOther(test.pic, kWhite), QRect(0, 86, 7, 14));
}

TEST(Balls, MaskIsTheirOwnAfterAPlayer) {
    TestBoard test;
    drawPlayers(test.board, 300, 300, kBlue, "4", kRed, 238);
    test.pic.cls();
    drawBalls(test.board, {{100, 100}});
    EXPECT_EQ(boundsOfOther(test.pic, kWhite), QRect(93, 86, 14, 14));
}

TEST(Balls, OneAtTheOriginCountsAsNone) {
    TestBoard test;
    const QImage mask = test.board.work.pMask.image();
    drawBalls(test.board, {{0, 0}});
    EXPECT_EQ(test.board.work.pMask.image(), mask) << "nothing is made ready";
    drawBalls(test.board, {{0, 0}, {0, 0}});
    EXPECT_NE(test.board.work.pMask.image(), mask);
}

TEST(Balls, OneBallIsPaintedWithoutATestOfPresence) {
    TestBoard one;
    TestBoard list;
    drawBallAt(one.board, 100.5F, 90);
    drawBalls(list.board, {{100.5F, 90}});
    EXPECT_EQ(one.pic.image(), list.pic.image());
    EXPECT_FALSE(isUntouched(one.pic));
    drawBallAt(one.board, 0, 1000);
}

TEST(Balls, WithoutArtShowTheMask) {
    TestBoard test;
    test.art.pBall = {};
    drawBalls(test.board, {{100, 100}});
    EXPECT_EQ(test.pic.point(100, 93), kBlack);
}

TEST(Balls, LeaveTheDrawingState) {
    TestBoard test;
    test.pic.state = oddState();
    drawBalls(test.board, {{100, 100}});
    drawBallAt(test.board, 50, 50);
    EXPECT_EQ(test.pic.state, oddState());
}

TEST(Marks, FarOffAreClippedWithoutDelay) {
    const auto start = std::chrono::steady_clock::now();
    TestBoard test;
    for (const float far : {1e9F, -1e9F, 3e38F, -3e38F, 2147483647.0F}) {
        drawShadows(test.board, {{far, far, -32768, 32767, kBlue}, {0, 0, 32767, 32767, kBlue}});
        drawTriangles(test.board, {{far, -far, kRed}});
        drawBalls(test.board, {{far, far}});
        drawTextPictures(test.board, {text("Horns", far, far), text("Horns", 0, 0, 32767)}, 238);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(Marks, ManyBallsArePainted) {
    TestBoard test;
    const std::vector<document::BallRec> balls(10000, {100, 100});
    const auto start = std::chrono::steady_clock::now();
    drawBalls(test.board, balls);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    EXPECT_EQ(boundsOfOther(test.pic, kWhite), QRect(93, 86, 14, 14));
}

} // namespace
} // namespace zeltrona::render
