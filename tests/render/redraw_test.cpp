#include "render/redraw.h"
#include "tests/render/board_fixture.h"
#include "tests/render/golden.h"

#include <gtest/gtest.h>
#include <utility>

namespace zeltrona::render {
namespace {

constexpr Color kFloor = 0x40A040;

/// A frame in which everything lies on one spot, each thing in a colour of its own.
struct Pile {
    document::Session session;
    document::FrameRecords frame;

    Pile() {
        session.court = 1;
        session.courtColor = kFloor;
        session.colorOff = 0x0000F1;
        session.colorDef = 0x0000F2;
        session.colorLine = 0x0000F3;
        session.lineWidth = 3;
        session.showCurves = -1;
        frame.shadows = {{80, 80, 140, 140, 0x0000F4}};
        frame.triangles = {{100, 113, 0x0000F5}};
        frame.txtPics = {text()};
        frame.balls = {{113, 120}};
        frame.offPlayers = {{100, 100, "", 0, 0, 0}};
        frame.defPlayers = {{104, 104, "", 0, 0, 0}};
        frame.lines = {{0, 0x0000F8, false, {{60, 113}, {160, 113}}}};
        frame.offPaths = {{0, {{113, 113}, {20, 20}}}};
    }
    static document::TxtPicRec text() {
        document::TxtPicRec record;
        record.text = "MMMM";
        record.fontName = "Arial";
        record.fontSize = 24;
        record.x = 80;
        record.y = 130;
        record.bold = true;
        record.color = 0x0000F6;
        return record;
    }
    Scene scene() const { return {session, frame}; }
};

/// Takes things away from the top down. Whatever lies on top shows all of itself: every pixel that it covers
/// has its own ink, and below it the pile of the rest comes out.
TEST(Redraw, StacksFromShadowsUpToCurvePoints) {
    using Take = void (*)(Pile&);
    const std::vector<std::pair<const char*, Take>> fromTheTop{
        {"curve points", [](Pile& p) { p.session.showCurves = 0; }},
        {"movement lines", [](Pile& p) { document::resetLines(p.frame.lines); }},
        {"defence", [](Pile& p) { document::resetPlayers(p.frame.defPlayers); }},
        {"offence", [](Pile& p) { document::resetPlayers(p.frame.offPlayers); }},
        {"balls", [](Pile& p) { document::resetBalls(p.frame.balls); }},
        {"texts", [](Pile& p) { document::resetTxtPics(p.frame.txtPics); }},
        {"triangles", [](Pile& p) { document::resetTriangles(p.frame.triangles); }},
        {"shadows", [](Pile& p) { document::resetShadows(p.frame.shadows); }}};
    for (std::size_t top = 0; top < fromTheTop.size(); ++top) {
        Pile with;
        for (std::size_t i = 0; i < top; ++i) {
            fromTheTop[i].second(with);
        }
        Pile without = with;
        fromTheTop[top].second(without);
        Pile alone;
        for (std::size_t i = 0; i < fromTheTop.size(); ++i) {
            if (i != top) {
                fromTheTop[i].second(alone);
            }
        }
        TestBoard withBoard;
        TestBoard withoutBoard;
        TestBoard aloneBoard;
        TestBoard bare;
        redrawBoard(withBoard.board, with.scene(), 0, 0);
        redrawBoard(withoutBoard.board, without.scene(), 0, 0);
        redrawBoard(aloneBoard.board, alone.scene(), 0, 0);
        drawCourt(bare.board, alone.session);
        const std::vector<QPoint> ink = changedPixels(aloneBoard.pic, bare.pic);
        EXPECT_FALSE(ink.empty()) << fromTheTop[top].first;
        for (const QPoint point : ink) {
            ASSERT_EQ(withBoard.pic.point(point.x(), point.y()), aloneBoard.pic.point(point.x(), point.y()))
                << fromTheTop[top].first << " is covered at " << point.x() << ',' << point.y();
        }
        EXPECT_FALSE(changedPixels(withBoard.pic, withoutBoard.pic).empty()) << fromTheTop[top].first;
    }
}

TEST(Redraw, OfAnEmptyFrameIsTheCourtAlone) {
    document::Session session;
    session.court = 1;
    session.courtColor = kFloor;
    for (const std::int16_t bodyType : {std::int16_t{0}, std::int16_t{1}}) {
        session.bodyType = bodyType;
        TestBoard redrawn;
        TestBoard court;
        const document::FrameRecords frame;
        redrawBoard(redrawn.board, {session, frame}, 0, 0);
        drawCourt(court.board, session);
        EXPECT_EQ(redrawn.pic.image(), court.pic.image());
        EXPECT_TRUE(redrawn.errors.empty());
    }
}

TEST(Redraw, StartsAfreshEachTime) {
    Pile pile;
    TestBoard once;
    TestBoard twice;
    redrawBoard(once.board, pile.scene(), 0, 0);
    twice.pic.line(0, 0, 362, 331, kBlue);
    redrawBoard(twice.board, pile.scene(), 0, 0);
    redrawBoard(twice.board, pile.scene(), 0, 0);
    EXPECT_EQ(once.pic.image(), twice.pic.image());
}

TEST(Redraw, ShowsTheFinishedPictureOnce) {
    Pile pile;
    TestBoard test;
    int refreshes = 0;
    bool finished = false;
    test.pic.setRefreshObserver([&] {
        ++refreshes;
        finished = test.pic.point(113, 113) == 0x0000F3;
    });
    redrawBoard(test.board, pile.scene(), 0, 0);
    EXPECT_EQ(refreshes, 1);
    EXPECT_TRUE(finished);
}

TEST(Redraw, LeavesTheDrawingStateButForTheCharacterSet) {
    Pile pile;
    TestBoard test;
    const DrawingState before = test.pic.state;
    redrawBoard(test.board, pile.scene(), 0, 0);
    DrawingState after = test.pic.state;
    EXPECT_EQ(after.font.charset, 238);
    after.font.charset = before.font.charset;
    after.currentX = before.currentX;
    after.currentY = before.currentY;
    after.fillColor = before.fillColor; // the ends of lines put back the fore colour and the fill style alone
    EXPECT_EQ(after, before);
}

TEST(Redraw, PlayersAreCirclesUnlessTheBodyTypeIsOne) {
    Pile pile;
    pile.frame.offPlayers = {{200, 200, "4", 0, 15, 0x123456}};
    for (const int type : {0, 2, -1}) {
        pile.session.bodyType = static_cast<std::int16_t>(type);
        TestBoard test;
        redrawBoard(test.board, pile.scene(), 0, 0);
        EXPECT_EQ(coloursOf(test.pic).count(0x123456), 0U) << type;
        EXPECT_EQ(test.pic.point(204, 213), 0x0000F1);
    }
    pile.session.bodyType = 1;
    TestBoard test;
    redrawBoard(test.board, pile.scene(), 0, 0);
    EXPECT_EQ(coloursOf(test.pic)[0x123456], 5 * 8);
}

TEST(Redraw, PlayerLabelledZeroIsACircleAlsoAmongBodies) {
    Pile pile;
    pile.session.bodyType = 1;
    pile.frame.offPlayers = {{200, 200, "0", 0, 15, 0x123456}, {200, 250, "00", 0, 15, 0x654321}};
    TestBoard test;
    redrawBoard(test.board, pile.scene(), 0, 0);
    const auto colours = coloursOf(test.pic);
    EXPECT_EQ(colours.count(0x123456), 0U);
    EXPECT_EQ(colours.count(0x654321), 1U);
    EXPECT_EQ(test.pic.point(204, 213), 0x0000F1);
}

TEST(Redraw, EachSideHasItsColours) {
    Pile pile;
    pile.session.colorOffFont = 0x0100FF;
    pile.session.colorDefFont = 0x0200FF;
    pile.frame.offPlayers = {{200, 200, "8", 0, 15, 0}};
    pile.frame.defPlayers = {{250, 250, "8", 0, 15, 0}};
    TestBoard test;
    redrawBoard(test.board, pile.scene(), 0, 0);
    auto colours = coloursOf(test.pic);
    EXPECT_GT(colours[0x0000F1], 100);
    EXPECT_GT(colours[0x0000F2], 100);
    EXPECT_GT(colours[0x0100FF], 5);
    EXPECT_EQ(colours[0x0100FF], colours[0x0200FF]);
}

TEST(Redraw, EmptySlotAmongPlayersIsPaintedBelowTheBoard) {
    Pile pile;
    pile.frame.offPlayers = {{200, 200, "4", 0, 0, 0}, {0, 1000, "0", 0, 0, 0}};
    TestBoard low;
    redrawBoard(low.board, pile.scene(), 0, 0);
    pile.frame.offPlayers.pop_back();
    TestBoard one;
    redrawBoard(one.board, pile.scene(), 0, 0);
    EXPECT_EQ(low.pic.image(), one.pic.image());
    pile.frame.offPlayers = {{0, 1000, "0", 0, 0, 0}};
    TestBoard tall(363, 1100);
    pile.session.courtTexture = 1;
    redrawBoard(tall.board, pile.scene(), 0, 0);
    EXPECT_EQ(tall.pic.point(5, 1013), 0x0000F1) << "it is painted, where nobody sees it";
}

TEST(Redraw, HandsThePointerToTheLineUnderConstruction) {
    Pile pile;
    pile.frame.lines = {{0, 0x0000F8, false, {{30, 300}}}};
    TestBoard test;
    redrawBoard(test.board, {pile.session, pile.frame, 0}, 90, 300);
    EXPECT_EQ(test.pic.point(60, 300), 0x0000F8);
    TestBoard none;
    redrawBoard(none.board, {pile.session, pile.frame, -1}, 90, 300);
    EXPECT_EQ(none.pic.point(60, 300), kFloor);
}

TEST(Redraw, TellsEachFailedPlayer) {
    const BoardArt none;
    BoardSurface pic;
    std::vector<std::string> errors;
    Board board{pic, none, [&](const char* text) { errors.emplace_back(text); }};
    Pile pile;
    pile.session.bodyType = 1;
    pile.frame.offPlayers = {{1, 1, "4", 0, 0, 0}, {1, 1, "0", 0, 0, 0}};
    redrawBoard(board, pile.scene(), 0, 0);
    EXPECT_EQ(errors, (std::vector<std::string>{"Low level Drawing error.", "Drawing error.",
                                                "Low level Drawing error."}));
}

TEST(CurvePoints, ShowOnlyWhenSwitchedOnAndLeaveTheirData) {
    Pile pile;
    const document::FrameRecords before = pile.frame;
    for (const int on : {0, -1, 1}) {
        pile.session.showCurves = static_cast<std::int16_t>(on);
        TestBoard test;
        redrawBoard(test.board, pile.scene(), 0, 0);
        EXPECT_EQ(test.pic.point(20, 20), on != 0 ? 0x0000F3 : kFloor);
    }
    EXPECT_EQ(pile.frame, before);
}

TEST(CurvePoints, AreOneDotEachOfAllThreeLists) {
    Pile pile;
    pile.frame.offPaths = {{0, {{10, 10}, {12.5F, 10}}}, {3, {{20, 10}}}};
    pile.frame.defPaths = {{1, {{30, 10}}}};
    pile.frame.ballPaths = {{2, {{40, 10}, {41, 10}}}};
    TestBoard test;
    drawCurvePoints(test.board, pile.scene());
    EXPECT_EQ(countOf(test.pic, 0x0000F3), 6);
    EXPECT_EQ(test.pic.point(12, 10), 0x0000F3);
    EXPECT_EQ(test.pic.point(41, 10), 0x0000F3);
}

TEST(CurvePoints, ListEndsAtItsFirstEmptyPath) {
    Pile pile;
    pile.frame.offPaths = {{4, {{10, 10}}}, {0, {{0, 0}, {20, 20}}}, {5, {{30, 30}}}};
    pile.frame.defPaths = {{0, {{0, 0}, {40, 40}}}, {1, {{50, 50}}}};
    pile.frame.ballPaths = {{0, {{60, 60}}}};
    TestBoard test;
    drawCurvePoints(test.board, pile.scene());
    EXPECT_EQ(countOf(test.pic, 0x0000F3), 2);
    EXPECT_EQ(test.pic.point(10, 10), 0x0000F3);
    EXPECT_EQ(test.pic.point(60, 60), 0x0000F3);
}

TEST(CurvePoints, HaveTheWidthOfThePenAsItStands) {
    Pile pile;
    pile.frame.offPaths = {{0, {{50, 50}}}};
    TestBoard test;
    test.pic.state.drawWidth = 3;
    drawCurvePoints(test.board, pile.scene());
    EXPECT_EQ(boundsOfOther(test.pic, kWhite), QRect(49, 49, 3, 3));
}

TEST(CurvePoints, OutsideTheBoardAreClipped) {
    Pile pile;
    pile.frame.offPaths = {{0, {{-1, 10}, {363, 10}, {1e9F, -1e9F}, {10, 332}}}};
    TestBoard test;
    drawCurvePoints(test.board, pile.scene());
    EXPECT_EQ(countOf(test.pic, kWhite), 363 * 332);
}

/// No letters, which may change with the font engine.
TEST(Redraw, MatchesItsGoldenPicture) {
    document::Session session;
    session.court = 1;
    session.courtColor = 0xA0D8F0;
    session.bodyType = 1;
    session.colorOff = 0x2040D0;
    session.colorDef = 0xB06020;
    session.colorLine = 0xFF00FF;
    session.lineWidth = 2;
    session.showCurves = -1;
    document::FrameRecords frame;
    frame.shadows = {{80, 80, 140, 130, 0xC0C060}};
    frame.triangles = {{90, 113, 0x008000}, {135, 60, 0x800000}};
    frame.balls = {{113, 120}, {30, 60}};
    frame.offPlayers = {{20, 20, "", 0, 90, 0x90B0E0}, {100, 90, "", 1, 200, 0x90B0E0}};
    frame.defPlayers = {{60, 20, "", 2, 300, 0x6080A0}, {120, 95, "", 3, 0, 0x6080A0}};
    frame.lines = {{0, 0, false, {{60, 140}, {180, 60}}}, {2, 0x0000FF, false, {{20, 150}, {90, 120}}}};
    frame.offPaths = {{1, {{180, 20}, {184, 24}, {188, 28}, {192, 32}}}};
    TestBoard test;
    redrawBoard(test.board, {session, frame}, 0, 0);
    EXPECT_TRUE(looksLikeGolden(test.pic.image().copy(0, 0, 200, 160), "redraw"));
}

} // namespace
} // namespace zeltrona::render
