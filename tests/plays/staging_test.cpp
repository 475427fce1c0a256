#include "tools/plays/court_map.h"
#include "tools/plays/floor_objects.h"
#include "tools/plays/moments.h"
#include "tools/plays/staging.h"

#include <cmath>
#include <gtest/gtest.h>

namespace zeltrona::plays {
namespace {

using document::FrameRecords;
using document::PointF;

/// Two attackers, the first with the ball, and two frames.
PlayScript twoOnNone(std::vector<Move> moves) {
    PlayScript play;
    play.offence = {{-2, 9}, {5, 6}};
    play.balls = {o(1)};
    play.frames = {{.note = "First.", .moves = std::move(moves)}, {.note = "Second."}};
    return play;
}

PointF middleOf(const FrameRecords& frame, std::size_t i, float half = 13) {
    return {frame.offPlayers[i].x + half, frame.offPlayers[i].y + half};
}

double gap(PointF a, PointF b) {
    return std::hypot(b.x - a.x, b.y - a.y);
}

TEST(Stage, DrawsEachVerbInItsStyle) {
    for (const auto& [move, style] : {std::pair{cut(o(2), {1, 2}), 0},
                                      {pass(o(1), o(2)), 1},
                                      {dribble(o(1), {2, 5}), 2},
                                      {screen(o(2), {1, 2}), 3},
                                      {shoot(o(1)), 4}}) {
        const auto lines = stage(twoOnNone({move}))[0].lines;
        ASSERT_EQ(lines.size(), 1U);
        EXPECT_EQ(lines[0].style, style);
        EXPECT_FALSE(lines[0].curved);
    }
}

TEST(Stage, DrawsNoLineForASlideOrATinyStep) {
    EXPECT_FALSE(document::hasLines(stage(twoOnNone({slide(o(2), {1, 2})}))[0].lines));
    EXPECT_FALSE(document::hasLines(stage(twoOnNone({cut(o(2), {5.2, 6})}))[0].lines));
}

TEST(Stage, MovesARunnerToWhereHisLineEnds) {
    const auto frames = stage(twoOnNone({cut(o(2), {1, 2})}));
    EXPECT_EQ(frames[0].lines[0].pts.back(), middleOf(frames[1], 1));
    EXPECT_FALSE(document::hasPaths(frames[0].offPaths));
}

TEST(Stage, RecordsACurvedRun) {
    const auto frames = stage(twoOnNone({cut(o(2), {1, 2}, {{5, 2}})}));
    EXPECT_TRUE(frames[0].lines[0].curved);
    EXPECT_EQ(frames[0].lines[0].pts.size(), 3U);
    ASSERT_TRUE(document::hasPaths(frames[0].offPaths));
    EXPECT_EQ(frames[0].offPaths[0].owner, 1);
    EXPECT_EQ(frames[0].offPaths[0].pts.back(),
              (PointF{frames[1].offPlayers[1].x, frames[1].offPlayers[1].y}));
}

TEST(Stage, LeavesTheLastFrameWithoutPaths) {
    PlayScript play = twoOnNone({});
    play.frames[1].moves = {cut(o(2), {1, 2}, {{5, 2}})};
    const auto frames = stage(play);
    EXPECT_FALSE(document::hasPaths(frames[1].offPaths));
    EXPECT_TRUE(frames[1].lines[0].curved);
}

TEST(Stage, HandsTheBallToWhoReceivesThePass) {
    const auto frames = stage(twoOnNone({pass(o(1), o(2)), cut(o(2), {1, 2})}));
    const PointF ball{frames[1].balls[0].x, frames[1].balls[0].y - kBallFoot};
    EXPECT_LT(gap(ball, middleOf(frames[1], 1)), 18);
    EXPECT_GT(gap(ball, middleOf(frames[1], 0)), 40);
}

TEST(Stage, CarriesTheBallAlongACurvedDribble) {
    const auto frames = stage(twoOnNone({dribble(o(1), {3, 4}, {{-1, 4}})}));
    ASSERT_EQ(frames[0].ballPaths.size(), 1U);
    EXPECT_EQ(frames[0].ballPaths[0].pts.size(), frames[0].offPaths[0].pts.size());
    EXPECT_EQ(frames[0].ballPaths[0].pts.back(), (PointF{frames[1].balls[0].x, frames[1].balls[0].y}));
}

TEST(Stage, SendsAShotToTheBasket) {
    const auto frames = stage(twoOnNone({shoot(o(1))}));
    EXPECT_LT(gap({frames[1].balls[0].x, frames[1].balls[0].y - kBallFoot}, CourtMap(1).at(kBasket)), 1);
}

TEST(Stage, PutsPlayersOnWholeUnits) {
    const FrameRecords frame = stage(twoOnNone({}))[0];
    for (const document::PlayerRec& player : frame.offPlayers) {
        EXPECT_EQ(player.x, std::nearbyint(player.x));
        EXPECT_EQ(player.y, std::nearbyint(player.y));
    }
}

TEST(Stage, TurnsBodiesToTheirTask) {
    PlayScript play = twoOnNone({cut(o(2), {5, 1})});
    play.look.bodies = true;
    const auto players = stage(play)[0].offPlayers;
    EXPECT_EQ(players[1].angle, 90); // straight to the end line at the top
    EXPECT_EQ(players[1].body, 0);
    EXPECT_EQ(players[0].body, 1); // holds the ball
    EXPECT_EQ(players[0].angle % 15, 0);
}

TEST(ManToMan, StandsBetweenHisManAndTheBasket) {
    PlayScript play = twoOnNone({});
    play.howDefended = Defence::ManToMan;
    const Moment first = momentsOf(play)[0];
    const PointF basket = CourtMap(1).at(kBasket);
    ASSERT_EQ(first.defence.size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_LT(gap(first.defence[i], basket), gap(first.offence[i], basket));
    }
    EXPECT_LT(gap(first.defence[0], first.offence[0]), gap(first.defence[1], first.offence[1]));
}

TEST(ManToMan, GivesWayToAMoveThatTheScriptTells) {
    PlayScript play = twoOnNone({slide(x(2), {-6, 12})});
    play.howDefended = Defence::ManToMan;
    const Moment second = momentsOf(play)[1];
    EXPECT_LT(gap(second.defence[1], CourtMap(1).at({-6, 12})), 1);
}

TEST(Stage, LaysShadesTextsAndMarksWhereTheScriptSays) {
    PlayScript play = twoOnNone({});
    play.frames[0].shades = {{{0, 6}, 2, 1, 1234}};
    play.frames[0].labels = {{"gap", {0, 6}, 77, 10}};
    play.frames[0].marks = {{{3, 6}, 99}};
    const FrameRecords frame = stage(play)[0];
    const PointF middle = CourtMap(1).at({0, 6});
    EXPECT_NEAR((frame.shadows[0].x + frame.shadows[0].w) / 2, middle.x, 1);
    EXPECT_NEAR(frame.shadows[0].w - frame.shadows[0].x, 4 * 22.4, 2);
    EXPECT_NEAR(frame.shadows[0].h - frame.shadows[0].y, 2 * 22.4, 2);
    EXPECT_EQ(frame.txtPics[0].text, "gap");
    EXPECT_EQ(frame.txtPics[0].fontSize, 10);
    EXPECT_NEAR(frame.triangles[0].x + 6, CourtMap(1).at({3, 6}).x, 1);
}

} // namespace
} // namespace zeltrona::plays
