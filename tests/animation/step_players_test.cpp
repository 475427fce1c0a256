#include "animation/step_players.h"
#include "tests/animation/playback_builders.h"

#include <array>
#include <gtest/gtest.h>

namespace zeltrona::animation {
namespace {

using document::PointF;
using test::longPath;
using test::pathOf;
using test::playerAt;
using test::StepBuilder;

PointF placeOf(const PlayerRec& player) {
    return {player.x, player.y};
}

/// Counts the tick up and steps.
RunTimeError tick(PlaybackSet& set) {
    ++set.animTick;
    return stepPlayers(set);
}

void tickUntil(PlaybackSet& set, int animTick) {
    while (set.animTick < animTick) {
        ASSERT_EQ(tick(set), kNoError);
    }
}

bool isOver(const PlaybackSet& set) {
    return set.animOffDone && set.animDefDone && set.animBallDone;
}

int ticksOfStep(PlaybackSet& set, int limit = 5000) {
    while (!isOver(set) && set.animTick < limit) {
        EXPECT_EQ(tick(set), kNoError);
    }
    return set.animTick;
}

TEST(StepPlayers, ThirtyUnitsAlongXAreOverAtTickTen) {
    PlaybackSet set = StepBuilder().offence({playerAt(100, 40)}, {playerAt(130, 40)}).set;
    tickUntil(set, 9);
    EXPECT_EQ(placeOf(set.offAnimCur[0]), (PointF{127, 40}));
    EXPECT_FALSE(set.animOffDone);
    tickUntil(set, 10);
    EXPECT_EQ(placeOf(set.offAnimCur[0]), (PointF{130, 40}));
    EXPECT_TRUE(set.animOffDone);
}

struct StraightRow {
    const char* name;
    PointF start;
    PointF end;
    PointF first;  ///< after one tick
    PointF second; ///< after two
    int ticks;
};

TEST(StepPlayers, StraightMovesInEveryDirection) {
    const std::array rows{
        StraightRow{"right", {10, 50}, {17, 50}, {13, 50}, {16, 50}, 3},
        StraightRow{"left", {17, 50}, {10, 50}, {14, 50}, {11, 50}, 3},
        StraightRow{"down", {50, 10}, {50, 16}, {50, 13}, {50, 16}, 2},
        StraightRow{"up", {50, 16}, {50, 8}, {50, 13}, {50, 10}, 3},
        StraightRow{"nowhere", {50, 16}, {50, 16}, {50, 16}, {50, 16}, 1},
        StraightRow{"right and down", {0, 0}, {6, 8}, {1.8F, 2.4F}, {3.6F, 4.8F}, 4},
        StraightRow{"left and up", {6, 8}, {0, 0}, {4.2F, 5.6F}, {2.4F, 3.2F}, 4},
        StraightRow{"right and up", {0, 8}, {6, 0}, {1.8F, 5.6F}, {3.6F, 3.2F}, 4},
        StraightRow{"left and down", {6, 0}, {0, 8}, {4.2F, 2.4F}, {2.4F, 4.8F}, 4},
        StraightRow{"one unit", {5, 5}, {6, 5}, {6, 5}, {6, 5}, 1},
    };
    for (const StraightRow& row : rows) {
        SCOPED_TRACE(row.name);
        PlaybackSet set =
            StepBuilder().offence({playerAt(row.start.x, row.start.y)}, {playerAt(row.end.x, row.end.y)}).set;
        tick(set);
        EXPECT_FLOAT_EQ(set.offAnimCur[0].x, row.first.x);
        EXPECT_FLOAT_EQ(set.offAnimCur[0].y, row.first.y);
        tick(set);
        EXPECT_FLOAT_EQ(set.offAnimCur[0].x, row.second.x);
        EXPECT_FLOAT_EQ(set.offAnimCur[0].y, row.second.y);
        set.animTick = 0;
        set.animOffDone = false;
        EXPECT_EQ(ticksOfStep(set), row.ticks);
        EXPECT_EQ(placeOf(set.offAnimCur[0]), row.end);
    }
}

TEST(StepPlayers, DiagonalGoesThreeUnitsATickAndEndsExactly) {
    PlaybackSet set = StepBuilder().offence({playerAt(100, 100)}, {playerAt(400, 500)}).set;
    tickUntil(set, 1);
    EXPECT_FLOAT_EQ(set.offAnimCur[0].x, 101.8F);
    EXPECT_FLOAT_EQ(set.offAnimCur[0].y, 102.4F);
    tickUntil(set, 50);
    EXPECT_FLOAT_EQ(set.offAnimCur[0].x, 190.0F);
    EXPECT_FLOAT_EQ(set.offAnimCur[0].y, 220.0F);
    EXPECT_EQ(ticksOfStep(set), 167);
    EXPECT_EQ(placeOf(set.offAnimCur[0]), (PointF{400, 500}));
}

TEST(StepPlayers, TheEarlierOneWaitsAtItsEndForTheLater) {
    PlaybackSet set =
        StepBuilder().offence({playerAt(0, 10), playerAt(0, 20)}, {playerAt(30, 10), playerAt(300, 20)}).set;
    tickUntil(set, 10);
    EXPECT_EQ(placeOf(set.offAnimCur[0]), (PointF{30, 10}));
    EXPECT_FALSE(set.animOffDone);
    tickUntil(set, 99);
    EXPECT_EQ(placeOf(set.offAnimCur[0]), (PointF{30, 10}));
    EXPECT_FALSE(set.animOffDone);
    tickUntil(set, 100);
    EXPECT_TRUE(set.animOffDone);
}

TEST(StepPlayers, EachGroupHasItsOwnFlagAndStepEndsWithTheLast) {
    PlaybackSet set = StepBuilder()
                          .offence({playerAt(0, 0)}, {playerAt(30, 0)})
                          .defence({playerAt(0, 50)}, {playerAt(60, 50)})
                          .balls({playerAt(0, 90)}, {playerAt(90, 90)})
                          .set;
    tickUntil(set, 10);
    EXPECT_TRUE(set.animOffDone);
    EXPECT_FALSE(set.animDefDone);
    tickUntil(set, 20);
    EXPECT_TRUE(set.animDefDone);
    EXPECT_FALSE(set.animBallDone);
    EXPECT_EQ(ticksOfStep(set), 30);
}

TEST(StepPlayers, LooksAreNotInterpolated) {
    PlayerRec start = playerAt(0, 0, "7");
    start.angle = 90;
    start.body = 1;
    start.skin = 0x112233;
    PlayerRec end = playerAt(30, 0, "8");
    end.angle = 270;
    end.body = 3;
    end.skin = 0x445566;
    PlaybackSet set = StepBuilder().offence({start}, {end}).set;
    ticksOfStep(set);
    PlayerRec wanted = start;
    wanted.x = 30;
    EXPECT_EQ(set.offAnimCur[0], wanted);
}

TEST(StepPlayers, PathOf200PointsShowsOnePointATickThenJumps) {
    StepBuilder builder;
    builder.offence({playerAt(5, 7)}, {playerAt(8, 7)});
    builder.set.offAnimPaths = {longPath(0, 200)};
    PlaybackSet& set = builder.set;
    for (int t = 1; t <= 199; ++t) {
        tickUntil(set, t);
        ASSERT_EQ(placeOf(set.offAnimCur[0]), (PointF{5.0F + static_cast<float>(t), 7}));
        // Point 3 is the end position by chance: standing there for a tick ends the step of the group.
        ASSERT_EQ(set.animOffDone, t >= 3);
    }
    tickUntil(set, 200);
    EXPECT_EQ(placeOf(set.offAnimCur[0]), (PointF{8, 7}));
}

TEST(StepPlayers, PathKeepsTheStepRunningHoweverShortTheWay) {
    StepBuilder builder;
    builder.offence({playerAt(5, 7)}, {playerAt(6, 9)});
    builder.set.offAnimPaths = {longPath(0, 200)};
    EXPECT_EQ(ticksOfStep(builder.set), 200);
    EXPECT_EQ(placeOf(builder.set.offAnimCur[0]), (PointF{6, 9}));
}

TEST(StepPlayers, PathOfOnePointShowsNothingOfItself) {
    StepBuilder builder;
    builder.offence({playerAt(50, 70)}, {playerAt(350, 70)});
    builder.set.offAnimPaths = {pathOf(0, {{200, 200}})};
    EXPECT_EQ(ticksOfStep(builder.set), 1);
    EXPECT_EQ(placeOf(builder.set.offAnimCur[0]), (PointF{350, 70}));
}

TEST(StepPlayers, PathWithAnOwnerBehindTheLastPlayerIsPassedOver) {
    StepBuilder builder;
    builder.offence({playerAt(0, 0)}, {playerAt(30, 0)});
    builder.set.offAnimPaths = {longPath(1, 100), pathOf(0, {{1, 1}, {9, 9}, {8, 8}})};
    tick(builder.set);
    EXPECT_EQ(placeOf(builder.set.offAnimCur[0]), (PointF{9, 9}));
    EXPECT_EQ(ticksOfStep(builder.set), 3);
}

TEST(StepPlayers, AFirstPathThatLooksEmptyHidesAllPaths) {
    StepBuilder builder;
    builder.offence({playerAt(0, 0), playerAt(0, 40)}, {playerAt(30, 0), playerAt(30, 40)});
    builder.set.offAnimPaths = {pathOf(0, {{0, 0}, {90, 90}, {91, 91}}), longPath(1, 50)};
    tick(builder.set);
    EXPECT_EQ(placeOf(builder.set.offAnimCur[0]), (PointF{3, 0}));
    EXPECT_EQ(placeOf(builder.set.offAnimCur[1]), (PointF{3, 40}));
    EXPECT_EQ(ticksOfStep(builder.set), 10);
}

TEST(StepPlayers, TheLaterOfTwoPathsOfOneOwnerWins) {
    StepBuilder builder;
    builder.defence({playerAt(0, 0)}, {playerAt(30, 0)});
    builder.set.defAnimPaths = {pathOf(0, {{1, 1}, {2, 2}}), pathOf(0, {{3, 3}, {4, 4}})};
    tick(builder.set);
    EXPECT_EQ(placeOf(builder.set.defAnimCur[0]), (PointF{4, 4}));
}

TEST(StepPlayers, FlagsAreNeverTurnedOff) {
    PlaybackSet set = StepBuilder().offence({playerAt(0, 0)}, {playerAt(30, 0)}).set;
    set.animOffDone = true;
    set.animBallDone = true;
    tick(set);
    EXPECT_TRUE(set.animOffDone);
    EXPECT_TRUE(set.animBallDone);
}

TEST(StepPlayers, TicksAreMultipliedAsWholeNumbersUpToTheWrap) {
    StepBuilder builder;
    builder.offence({playerAt(0, 0)}, {playerAt(200000, 0)});
    builder.set.animTick = 32200;
    stepPlayers(builder.set);
    EXPECT_EQ(placeOf(builder.set.offAnimCur[0]), (PointF{96600, 0}));
}

TEST(StepPlayers, FewerPlayersInTheEndFrameIsASubscriptError) {
    StepBuilder builder;
    builder.offence({playerAt(0, 0), playerAt(0, 40)}, {playerAt(30, 0)});
    builder.defence({playerAt(0, 80)}, {playerAt(30, 80)});
    EXPECT_EQ(tick(builder.set), kSubscriptOutOfRange);
    EXPECT_EQ(kSubscriptOutOfRange.number, 9);
    EXPECT_EQ(kSubscriptOutOfRange.description, "Subscript out of range");
    EXPECT_EQ(placeOf(builder.set.offAnimCur[0]), (PointF{3, 0})) << "the first had moved";
    EXPECT_EQ(placeOf(builder.set.offAnimCur[1]), (PointF{0, 40}));
    EXPECT_EQ(placeOf(builder.set.defAnimCur[0]), (PointF{0, 80})) << "defence was not reached";
    EXPECT_FALSE(builder.set.animOffDone);
}

TEST(StepPlayers, FewerDefendersInTheEndFrameIsASubscriptError) {
    PlaybackSet set = StepBuilder().defence({playerAt(0, 0), playerAt(0, 40)}, {playerAt(30, 0)}).set;
    EXPECT_EQ(tick(set), kSubscriptOutOfRange);
}

TEST(StepPlayers, MorePlayersInTheEndFrameAreIgnored) {
    PlaybackSet set = StepBuilder().offence({playerAt(0, 0)}, {playerAt(30, 0), playerAt(300, 300)}).set;
    EXPECT_EQ(ticksOfStep(set), 10);
    EXPECT_EQ(set.offAnimCur.size(), 1U);
}

TEST(StepPlayers, AnEmptySideArrivesInTheFirstTick) {
    PlaybackSet set;
    set.animStepSize = 3;
    EXPECT_EQ(tick(set), kNoError);
    EXPECT_TRUE(isOver(set));
    EXPECT_EQ(set.offAnimCur[0], document::emptyPlayer());
}

TEST(StepBalls, NoBallInTheStartFrameCountsAsArrivedAndMovesNothing) {
    StepBuilder builder;
    builder.balls({document::emptyPlayer()}, {playerAt(100, 100)});
    builder.set.ballAnimPaths = {longPath(0, 50)};
    EXPECT_EQ(stepBalls(builder.set), kNoError);
    EXPECT_TRUE(builder.set.animBallDone);
    EXPECT_EQ(builder.set.ballAnimCur[0], document::emptyPlayer());
}

TEST(StepBalls, ABallThatVanishesLeavesTowardsTheEmptyRecord) {
    PlaybackSet set = StepBuilder().balls({playerAt(0, 400, "0")}, {document::emptyPlayer()}).set;
    tickUntil(set, 1);
    EXPECT_EQ(placeOf(set.ballAnimCur[0]), (PointF{0, 403}));
    EXPECT_EQ(ticksOfStep(set), 200);
    EXPECT_EQ(placeOf(set.ballAnimCur[0]), (PointF{0, 1000}));
}

TEST(StepBalls, ABallWithAPathFollowsItAndJumpsToItsEnd) {
    StepBuilder builder;
    builder.balls({playerAt(10, 10, "0")}, {playerAt(90, 10, "0")});
    builder.set.ballAnimPaths = {pathOf(0, {{10, 10}, {20, 30}, {40, 60}})};
    tickUntil(builder.set, 2);
    EXPECT_EQ(placeOf(builder.set.ballAnimCur[0]), (PointF{40, 60}));
    tickUntil(builder.set, 3);
    EXPECT_EQ(placeOf(builder.set.ballAnimCur[0]), (PointF{90, 10}));
    EXPECT_TRUE(builder.set.animBallDone);
}

} // namespace
} // namespace zeltrona::animation
