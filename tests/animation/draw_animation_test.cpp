#include "animation/draw_animation.h"
#include "tests/animation/moving_board.h"

#include <gtest/gtest.h>

namespace zeltrona::animation {
namespace {

using test::body;
using test::MovingBoard;
using test::playerAt;

/// Both teams on the board, in the frame and in the working set alike.
MovingBoard twoTeams() {
    MovingBoard moving;
    moving.frame.offPlayers = {body(40, 40, "4"), body(120, 60, "5", 200)};
    moving.frame.defPlayers = {body(60, 160, "4", 15), body(200, 220, "11", 300)};
    moving.set.offAnimCur = moving.frame.offPlayers;
    moving.set.defAnimCur = moving.frame.defPlayers;
    return moving;
}

TEST(DrawAnimationStep, StandingBodiesLookAsInTheEditor) {
    MovingBoard moving = twoTeams();
    const QImage tick = moving.tick();
    EXPECT_EQ(tick, moving.redraw());
}

TEST(DrawAnimationStep, StandingCirclesLookAsInTheEditor) {
    MovingBoard moving = twoTeams();
    moving.session.bodyType = 0;
    const QImage tick = moving.tick();
    EXPECT_EQ(tick, moving.redraw());
}

TEST(DrawAnimationStep, WhatDoesNotMoveStaysAwayAndComesBackWithTheNextRedraw) {
    MovingBoard moving = twoTeams();
    const QImage plain = moving.redraw();
    moving.frame.shadows = {{100, 100, 180, 180, 0x00FF00}};
    moving.frame.lines = {{1, 0x0000FF, false, {{10, 300}, {300, 300}}}};
    moving.frame.offPaths = {test::longPath(0, 60)};
    moving.frame.balls = {{300, 100}};
    moving.session.showCurves = -1;
    document::TxtPicRec text;
    text.text = "fast";
    text.fontName = "Arial";
    text.fontSize = 20;
    text.x = 200;
    text.y = 100;
    moving.frame.txtPics = {text};
    EXPECT_EQ(moving.tick(), plain);
    EXPECT_NE(moving.redraw(), plain);
}

TEST(DrawAnimationStep, TrianglesOfTheStepAreOnTheBoard) {
    MovingBoard moving = twoTeams();
    moving.frame.triangles = {{300, 300, 0x0000FF}};
    const QImage tick = moving.tick();
    EXPECT_EQ(tick.pixelColor(306, 300), QColor(Qt::red)) << "the base, 12 wide";
    EXPECT_EQ(tick, moving.redraw());
}

TEST(DrawAnimationStep, BallsLieOnTopOfThePlayers) {
    MovingBoard moving = twoTeams();
    moving.set.ballAnimCur = {playerAt(65, 72, "0")};
    moving.frame.balls = {{65, 72}};
    const QImage ball = MovingBoard().board.art.pBall;
    const QImage tick = moving.tick();
    EXPECT_EQ(tick.pixelColor(65, 65), ball.pixelColor(13, 13)) << "the ball's middle, seven above its place";
    EXPECT_NE(moving.redraw().pixelColor(65, 65), ball.pixelColor(13, 13)) << "the editor puts it below";
}

TEST(DrawAnimationStep, BallPlacesAreRoundedHalfToEven) {
    MovingBoard moving;
    moving.set.ballAnimCur = {playerAt(100.5F, 100.5F, "0")};
    const QImage half = moving.tick();
    moving.set.ballAnimCur = {playerAt(101, 100, "0")};
    const QImage whole = moving.tick();
    EXPECT_EQ(half, whole) << "87.5 goes to 88, 80.5 to 80";
}

TEST(DrawAnimationStep, AStepWithoutABallShowsNone) {
    MovingBoard moving = twoTeams();
    ASSERT_EQ(moving.set.ballAnimCur[0], document::emptyPlayer());
    EXPECT_EQ(moving.tick(), moving.redraw());
}

TEST(DrawAnimationStep, AnEmptyWorkingSetShowsTheCourtAlone) {
    MovingBoard moving;
    const QImage tick = moving.tick();
    render::drawCourt(moving.board, moving.session);
    EXPECT_EQ(tick, moving.surface.image());
}

TEST(DrawAnimationStep, AFirstLabelZeroPlaysTheWholeSideAsCircles) {
    MovingBoard moving = twoTeams();
    moving.frame.defPlayers = moving.set.defAnimCur = {document::emptyPlayer()};
    moving.set.offAnimCur[0].txt = moving.frame.offPlayers[0].txt = "0";
    const QImage tick = moving.tick();
    EXPECT_NE(tick, moving.redraw()) << "the still board has a body for the second player";
    moving.session.bodyType = 0;
    EXPECT_EQ(tick, moving.redraw());
}

TEST(DrawAnimationStep, ALaterLabelZeroIsABodyInPlayback) {
    MovingBoard moving = twoTeams();
    moving.set.offAnimCur[1].txt = moving.frame.offPlayers[1].txt = "0";
    const QImage tick = moving.tick();
    EXPECT_NE(tick, moving.redraw()) << "the still board has a circle";
    moving.surface.cls();
    render::drawCourt(moving.board, moving.session);
    for (const std::size_t i : {0U, 1U}) {
        render::drawPlayerBody(moving.board, {moving.session, moving.frame}, "off", i);
    }
    for (const std::size_t i : {0U, 1U}) {
        render::drawPlayerBody(moving.board, {moving.session, moving.frame}, "def", i);
    }
    EXPECT_EQ(tick, moving.surface.image());
}

TEST(DrawAnimationStep, EachSideIsAskedForItself) {
    MovingBoard moving = twoTeams();
    moving.set.offAnimCur[0].txt = moving.frame.offPlayers[0].txt = "0";
    const QImage tick = moving.tick();
    MovingBoard bodies = twoTeams();
    bodies.frame.offPlayers = bodies.set.offAnimCur = {document::emptyPlayer()};
    const QRect defence(60, 160, 190, 110);
    EXPECT_EQ(tick.copy(defence), bodies.redraw().copy(defence));
}

// Place, angle and pose are the working copy's; skin and label the shown frame's.
TEST(DrawAnimationStep, BodiesKeepTheLookOfTheShownFrame) {
    MovingBoard moving = twoTeams();
    moving.frame.offPlayers[0].skin = 0x102030;
    moving.frame.offPlayers[0].txt = "9";
    moving.frame.offPlayers[0].x = 300;
    moving.frame.offPlayers[0].angle = 10;
    moving.frame.offPlayers[0].body = 3;
    const QImage tick = moving.tick();
    moving.frame.offPlayers[0] = body(40, 40, "9", 90, 0x102030);
    EXPECT_EQ(tick, moving.redraw());
}

TEST(DrawAnimationStep, CirclesKeepTheLabelOfTheWorkingCopy) {
    MovingBoard moving = twoTeams();
    moving.session.bodyType = 0;
    const QImage before = moving.redraw();
    moving.frame.offPlayers[0].txt = "9";
    EXPECT_EQ(moving.tick(), before);
}

TEST(DrawAnimationStep, APlayerThatTheShownFrameLacksHasTheLookOfTheCopy) {
    MovingBoard moving = twoTeams();
    const QImage whole = moving.redraw();
    moving.frame.offPlayers.resize(1);
    moving.frame.defPlayers.resize(1);
    EXPECT_EQ(moving.tick(), whole);
}

TEST(DrawAnimationStep, OneFinishedPictureATick) {
    MovingBoard moving = twoTeams();
    int pictures = 0;
    moving.surface.setRefreshObserver([&pictures] { ++pictures; });
    moving.tick();
    EXPECT_EQ(pictures, 1);
}

TEST(DrawAnimationStep, DefenceIsDrawnOverOffence) {
    MovingBoard moving = twoTeams();
    moving.session.bodyType = 0;
    moving.set.offAnimCur = {playerAt(100, 100, "")};
    moving.set.defAnimCur = {playerAt(100, 100, "")};
    EXPECT_EQ(moving.tick().pixelColor(113, 108), QColor(0x20, 0x60, 0xC0));
}

} // namespace
} // namespace zeltrona::animation
