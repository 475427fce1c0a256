#include "render/player_circle.h"
#include "tests/render/board_fixture.h"

#include <gtest/gtest.h>

namespace zeltrona::render {
namespace {

constexpr Color kShirt = 0x2060C0;
constexpr Color kLabel = 0x00FFFF;

QImage whiteRing() {
    QImage ring(26, 26, QImage::Format_RGB32);
    ring.fill(Qt::white);
    return ring;
}

TEST(DrawPlayerC, LeavesABlackDiscOnWhiteOnTheMask) {
    BoardSurface mask(26, 26);
    BoardSurface color(26, 26);
    mask.line(0, 0, 25, 25, kGreen);
    EXPECT_NE(drawPlayerC(mask, color, whiteRing(), kShirt, QStringLiteral("5"), kLabel), 0);
    EXPECT_EQ(boundsOfOther(mask, kWhite), QRect(4, 4, 18, 18)) << "radius 9 around (13, 13)";
    EXPECT_EQ(countOf(mask, kWhite) + countOf(mask, kBlack), 26 * 26);
    EXPECT_EQ(mask.point(13, 13), kBlack);
}

TEST(DrawPlayerC, LeavesTheDiscInItsColourOnBlackOnTheOther) {
    BoardSurface mask(26, 26);
    BoardSurface color(26, 26);
    drawPlayerC(mask, color, whiteRing(), kShirt, QString(), kLabel);
    EXPECT_EQ(countOf(color, kShirt), countOf(mask, kBlack)) << "the outline has the fill colour";
    EXPECT_EQ(countOf(color, kShirt) + countOf(color, kBlack), 26 * 26);
    for (int y = 0; y < 26; ++y) {
        for (int x = 0; x < 26; ++x) {
            EXPECT_EQ(color.point(x, y) == kShirt, mask.point(x, y) == kBlack);
        }
    }
}

TEST(DrawPlayerC, PrintsTheTextCentredByItsMeasures) {
    BoardSurface mask(26, 26);
    BoardSurface color(26, 26);
    drawPlayerC(mask, color, whiteRing(), kShirt, QStringLiteral("12"), kLabel);
    BoardSurface want(26, 26);
    want.state.font = {QStringLiteral("Arial"), 8, true};
    want.state.foreColor = kLabel;
    want.state.currentX = 13 - static_cast<float>(want.textWidth(QStringLiteral("12"))) / 2;
    want.state.currentY = 13 - static_cast<float>(want.textHeight(QStringLiteral("12"))) / 2;
    want.print(QStringLiteral("12"));
    EXPECT_GT(countOf(want, kLabel), 10);
    for (int y = 0; y < 26; ++y) {
        for (int x = 0; x < 26; ++x) {
            ASSERT_EQ(color.point(x, y) == kLabel, want.point(x, y) == kLabel) << x << ',' << y;
        }
    }
}

TEST(DrawPlayerC, WideTextIsNeitherCutNorShrunk) {
    BoardSurface mask(26, 26);
    BoardSurface color(26, 26);
    drawPlayerC(mask, color, whiteRing(), kShirt, QStringLiteral("WWW"), kLabel);
    EXPECT_EQ(color.point(1, 13) == kLabel || color.point(0, 13) == kLabel || color.point(2, 13) == kLabel,
              true)
        << "letters reach past the disc, which starts at column 4";
}

TEST(DrawPlayerC, KeepsTheStateOfItsSurfacesButTheFill) {
    BoardSurface mask(26, 26);
    BoardSurface color(26, 26);
    const SurfaceFont font = color.state.font;
    drawPlayerC(mask, color, whiteRing(), kShirt, QStringLiteral("5"), kLabel);
    EXPECT_EQ(color.state.font, font);
    EXPECT_EQ(color.state.foreColor, kBlack);
}

TEST(DrawPlayerC, WithoutARingFailsAndTouchesNothing) {
    BoardSurface mask(26, 26);
    BoardSurface color(26, 26);
    EXPECT_EQ(drawPlayerC(mask, color, {}, kShirt, QStringLiteral("5"), kLabel), 0);
    EXPECT_EQ(countOf(mask, kWhite), 26 * 26);
    EXPECT_EQ(countOf(color, kWhite), 26 * 26);
}

TEST(DrawPlayers, PutsDiscAndRingOnTheBoardAndLeavesTheRest) {
    TestBoard test;
    test.pic.setBackColor(kGreen);
    drawPlayers(test.board, 100, 50, kShirt, "", kLabel, 238);
    EXPECT_EQ(test.pic.point(113, 63), kShirt);
    EXPECT_EQ(test.pic.point(104, 63), kShirt);
    EXPECT_EQ(test.pic.point(103, 63), kGreen);
    EXPECT_EQ(test.pic.point(121, 63), kShirt);
    EXPECT_EQ(test.pic.point(122, 63), kGreen);
    EXPECT_EQ(test.pic.point(103, 53), kBlack) << "the ring of the test art";
    EXPECT_EQ(test.pic.point(122, 54), kBlack);
    EXPECT_EQ(boundsOfOther(test.pic, kGreen), QRect(103, 53, 20, 19));
    EXPECT_TRUE(test.errors.empty());
}

TEST(DrawPlayers, EmptyTextLeavesTheDiscClean) {
    TestBoard test;
    drawPlayers(test.board, 100, 50, kShirt, "", kLabel, 238);
    EXPECT_EQ(countOf(test.pic, kLabel), 0);
}

TEST(DrawPlayers, LabelStandsOnTheDisc) {
    TestBoard test;
    drawPlayers(test.board, 100, 50, kShirt, "4", kLabel, 238);
    const QRect ink = boundsOf(test.pic, kLabel);
    EXPECT_NEAR(ink.center().x(), 112.5, 1.5);
    EXPECT_NEAR(ink.center().y(), 62.5, 1.5);
}

TEST(DrawPlayers, BlackLabelShowsOnTheDisc) {
    TestBoard test;
    test.art.pKrugMask.fill(Qt::white);
    drawPlayers(test.board, 100, 50, kShirt, "8", kBlack, 238);
    EXPECT_GT(countOf(test.pic, kBlack), 10);
}

TEST(DrawPlayers, LabelIsReadInTheCharacterSet) {
    TestBoard central;
    TestBoard western;
    TestBoard cyrillic;
    drawPlayers(central.board, 100, 50, kShirt, "\xE8", kLabel, 238);
    drawPlayers(western.board, 100, 50, kShirt, "\xE8", kLabel, 0);
    drawPlayers(cyrillic.board, 100, 50, kShirt, "\xE8", kLabel, 204);
    EXPECT_NE(central.pic.image(), western.pic.image());
    EXPECT_NE(central.pic.image(), cyrillic.pic.image());
}

TEST(DrawPlayers, PlaceIsRoundedHalfToEven) {
    TestBoard test;
    test.art.pKrugMask.fill(Qt::white);
    drawPlayers(test.board, 100.5F, 51.5F, kShirt, "", kLabel, 238);
    EXPECT_EQ(boundsOfOther(test.pic, kWhite), QRect(104, 56, 18, 18));
}

TEST(DrawPlayers, PlaceHasThirtyTwoBits) {
    TestBoard test;
    drawPlayers(test.board, 65536 + 100, 50, kShirt, "4", kLabel, 238);
    drawPlayers(test.board, 1e9F, -1e9F, kShirt, "4", kLabel, 238);
    EXPECT_EQ(countOf(test.pic, kWhite), 363 * 332) << "far to the right, not wrapped to 100";
}

TEST(DrawPlayers, PartOffTheBoardDoesNotAppear) {
    TestBoard test;
    drawPlayers(test.board, -13, -13, kShirt, "", kLabel, 238);
    EXPECT_EQ(boundsOfOther(test.pic, kWhite), QRect(0, 0, 9, 9));
}

TEST(DrawPlayers, FailureIsToldAndWhatTheSurfacesHoldIsCopiedAllTheSame) {
    TestBoard test;
    drawPlayers(test.board, 100, 50, kShirt, "", kLabel, 238);
    test.art.pKrugMask = {};
    drawPlayers(test.board, 200, 50, kRed, "", kLabel, 238);
    EXPECT_EQ(test.errors, std::vector<std::string>{"Drawing error."});
    EXPECT_EQ(test.pic.point(213, 63), kShirt) << "the player before";
    EXPECT_EQ(countOf(test.pic, kRed), 0);
}

TEST(DrawPlayers, FailureOfTheFirstPlayerLeavesTheBoardAsItWas) {
    TestBoard test;
    test.art.pKrugMask = {};
    drawPlayers(test.board, 100, 50, kShirt, "4", kLabel, 238);
    EXPECT_EQ(countOf(test.pic, kWhite), 363 * 332);
}

TEST(DrawPlayers, FailureWithNobodyToTellIsPassedOver) {
    const BoardArt none;
    BoardSurface pic;
    Board board{pic, none};
    drawPlayers(board, 100, 50, kShirt, "4", kLabel, 238);
    EXPECT_EQ(countOf(pic, kWhite), 363 * 332);
}

TEST(DrawPlayers, LeavesTheDrawingStateOfTheBoard) {
    TestBoard test;
    const DrawingState before = test.pic.state;
    drawPlayers(test.board, 100, 50, kShirt, "4", kLabel, 238);
    EXPECT_EQ(test.pic.state, before);
}

} // namespace
} // namespace zeltrona::render
