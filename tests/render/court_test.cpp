#include "render/court.h"
#include "tests/render/board_fixture.h"

#include <gtest/gtest.h>

namespace zeltrona::render {
namespace {

constexpr Color kParquet = 0x6496C8;    ///< of the test art, small
constexpr Color kBigParquet = 0x6EA0D2; ///< of the test art, big
constexpr Color kFloor = 0x00A040;

document::Session sessionOf(int court, int courtTexture, int useTexture) {
    document::Session session;
    session.court = static_cast<std::int16_t>(court);
    session.courtTexture = static_cast<std::int16_t>(courtTexture);
    session.useTexture = static_cast<std::int16_t>(useTexture);
    session.courtColor = kFloor;
    return session;
}

bool isBig(int court) {
    return court % 3 == 0;
}

/// Row of the line in the test art: each band of a sheet has it ten rows lower, the masks five rows lower
/// still.
int lineRowOf(int court, bool mask) {
    const int band = isBig(court) ? court / 3 - 1 : (court - 1) / 3 * 2 + (court - 1) % 3;
    return (mask ? 15 : 10) + band * 10;
}

TEST(BoardSize, FollowsTheFamilyOfTheCourt) {
    for (const int court : {3, 6, 9}) {
        EXPECT_EQ(boardSizeOf(static_cast<std::int16_t>(court)), QSize(532, 295));
    }
    for (const int court : {1, 2, 4, 5, 7, 8, 0, 10, -1, 32767, -3}) {
        EXPECT_EQ(boardSizeOf(static_cast<std::int16_t>(court)), QSize(363, 332)) << court;
    }
}

TEST(Court, ColourWithDarkLinesFromTheBandOfEachCourt) {
    for (int court = 1; court <= 9; ++court) {
        TestBoard test;
        drawCourt(test.board, sessionOf(court, 0, 0));
        const int row = lineRowOf(court, false);
        const int wide = isBig(court) ? 530 : 360;
        EXPECT_EQ(countOf(test.pic, kBlack), wide) << court;
        EXPECT_EQ(test.pic.point(wide - 1, row), kBlack);
        EXPECT_EQ(test.pic.point(wide, row), kFloor);
        EXPECT_EQ(countOf(test.pic, kFloor), test.pic.width() * test.pic.height() - wide);
        EXPECT_EQ(test.pic.image().size(), boardSizeOf(static_cast<std::int16_t>(court)));
    }
}

TEST(Court, ColourWithWhiteLinesFromTheMasks) {
    for (int court = 1; court <= 9; ++court) {
        TestBoard test;
        drawCourt(test.board, sessionOf(court, 0, 1));
        const int wide = isBig(court) ? 530 : 360;
        EXPECT_EQ(countOf(test.pic, kWhite), wide) << court;
        EXPECT_EQ(test.pic.point(0, lineRowOf(court, true)), kWhite);
        EXPECT_EQ(countOf(test.pic, kFloor), test.pic.width() * test.pic.height() - wide);
    }
}

TEST(Court, ParquetWithDarkLinesOnWhite) {
    TestBoard test;
    drawCourt(test.board, sessionOf(4, 1, 0));
    EXPECT_EQ(test.pic.point(0, 0), kParquet);
    EXPECT_EQ(test.pic.point(359, 328), kParquet);
    EXPECT_EQ(test.pic.point(360, 0), kWhite) << "beside the parquet the board is white";
    EXPECT_EQ(test.pic.point(0, 329), kWhite);
    EXPECT_EQ(countOf(test.pic, kBlack), 360);
    EXPECT_EQ(test.pic.point(0, lineRowOf(4, false)), kBlack);
}

TEST(Court, ParquetWithWhiteLines) {
    TestBoard test(532, 295);
    drawCourt(test.board, sessionOf(9, 1, 1));
    EXPECT_EQ(test.pic.point(0, 0), kBigParquet);
    EXPECT_EQ(test.pic.point(529, 289), kBigParquet);
    EXPECT_EQ(test.pic.point(530, 0), kWhite);
    EXPECT_EQ(test.pic.point(0, 290), kWhite);
    EXPECT_EQ(test.pic.point(0, lineRowOf(9, true)), kWhite);
    EXPECT_EQ(countOf(test.pic, kBlack), 0);
}

TEST(Court, LinesRunOverTheLastRowBelowTheParquet) {
    TestBoard test;
    test.art.picT.fill(Qt::black);
    drawCourt(test.board, sessionOf(1, 1, 0));
    EXPECT_EQ(test.pic.point(0, 329), kBlack);
    EXPECT_EQ(test.pic.point(0, 330), kWhite);
}

TEST(Court, AnyOtherSwitchValueCountsAsOn) {
    TestBoard test;
    drawCourt(test.board, sessionOf(1, -1, 7));
    EXPECT_EQ(test.pic.point(0, 0), kParquet);
    EXPECT_EQ(test.pic.point(0, lineRowOf(1, true)), kWhite);
}

TEST(Court, DarkLinesLetTheColourThroughBitByBit) {
    TestBoard test;
    test.art.picT.fill(qRgb(0x0F, 0xF0, 0xFF));
    document::Session session = sessionOf(1, 0, 0);
    session.courtColor = 0x335577;
    drawCourt(test.board, session);
    EXPECT_EQ(test.pic.point(5, 5), 0x335577 & 0xFFF00F);
}

TEST(Court, ColourBeyondTwentyFourBitsIsItsColour) {
    TestBoard test;
    document::Session session = sessionOf(1, 0, 0);
    session.courtColor = 0x7F00A040;
    drawCourt(test.board, session);
    EXPECT_EQ(test.pic.point(0, 0), kFloor);
}

TEST(Court, OutsideOneToNineHasNoLinesAndKeepsTheSize) {
    for (const int court : {0, 10, -1, 32767}) {
        TestBoard test(363, 332);
        drawCourt(test.board, sessionOf(court, 0, 0));
        EXPECT_EQ(countOf(test.pic, kFloor), 363 * 332) << court;
        TestBoard texture(363, 332);
        drawCourt(texture.board, sessionOf(court, 1, 1));
        EXPECT_EQ(countOf(texture.pic, kWhite), 363 * 332) << court;
    }
}

TEST(Court, ChangeOfFamilyResizesTheBoardWithoutTexture) {
    TestBoard test;
    drawCourt(test.board, sessionOf(3, 0, 0));
    EXPECT_EQ(test.pic.image().size(), QSize(532, 295));
    drawCourt(test.board, sessionOf(1, 0, 0));
    EXPECT_EQ(test.pic.image().size(), QSize(363, 332));
}

TEST(Court, ChangeOfFamilyLeavesTheSizeWithTexture) {
    TestBoard test;
    drawCourt(test.board, sessionOf(3, 1, 0));
    EXPECT_EQ(test.pic.image().size(), QSize(363, 332));
    EXPECT_EQ(test.pic.point(362, 0), kBigParquet);
    EXPECT_EQ(test.pic.point(0, 291), kWhite);
}

TEST(Court, PlainColourTakesTheParquetAway) {
    TestBoard test;
    drawCourt(test.board, sessionOf(1, 1, 0));
    drawCourt(test.board, sessionOf(1, 0, 0));
    EXPECT_EQ(test.pic.point(0, 0), kFloor);
    test.pic.cls();
    EXPECT_EQ(test.pic.point(0, 0), kFloor) << "the picture is gone for good";
}

TEST(Court, ClearsWhatWasDrawn) {
    TestBoard test;
    test.pic.line(0, 100, 362, 100, kRed);
    drawCourt(test.board, sessionOf(1, 1, 0));
    EXPECT_EQ(countOf(test.pic, kRed), 0);
}

TEST(Court, LeavesTheBackColourOfTheLastBranch) {
    TestBoard test;
    drawCourt(test.board, sessionOf(1, 0, 0));
    EXPECT_EQ(test.pic.backColor(), kFloor);
    drawCourt(test.board, sessionOf(1, 1, 0));
    EXPECT_EQ(test.pic.backColor(), kWhite);
}

TEST(Court, WithoutArtIsTheBareFloor) {
    const BoardArt none;
    BoardSurface pic;
    Board board{pic, none};
    drawCourt(board, sessionOf(1, 0, 1));
    EXPECT_EQ(countOf(pic, kFloor), 363 * 332);
    drawCourt(board, sessionOf(1, 1, 0));
    EXPECT_EQ(countOf(pic, kWhite), 363 * 332);
}

} // namespace
} // namespace zeltrona::render
