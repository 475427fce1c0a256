#include "animation/prepare_step.h"
#include "animation/step_players.h"
#include "tests/animation/playback_builders.h"
#include "tests/animation/transport_bench.h"

#include <gtest/gtest.h>

namespace zeltrona::animation {
namespace {

using document::PointF;
using test::configOf;
using test::frameHead;
using test::HandClock;
using tests::TemporaryPlay;

std::string fullPlay() {
    return configOf(2, 1)
           + "skinoff0=5\n"
             "skinoff1=6\n"
             "skindef0=7\n"
           + frameHead(1)
           + "off0=10,20\n"
             "angleoff0=90\n"
             "bodyoff0=1\n"
             "off1=30,40\n"
             "def0=50,60\n"
             "off1curve=30,40,31,41,32,42,\n"
             "def0curve=50,60,51,61,\n"
             "Ball0=70,80,\n"
             "Ball0curve=70,80,71,81,\n"
             "Triangle0=255,5,6,\n"
           + frameHead(2)
           + "off0=11,21\n"
             "angleoff0=180\n"
             "off1=32,42\n"
             "def0=51,61\n"
             "Ball0=71,81,\n"
             "Triangle0=128,7,8,\n";
}

struct Prepared {
    explicit Prepared(std::string_view lines, std::int16_t animFrame = 1, std::int16_t animLastFrame = 2)
        : play(lines) {
        set.animFrame = animFrame;
        set.animLastFrame = animLastFrame;
        clock.setEnabled(true);
    }
    void step() { prepareAnimationStep(set, play.file, triangles, clock); }
    void lastStep() { prepareLastFrameStep(set, play.file); }

    TemporaryPlay play;
    PlaybackSet set;
    std::vector<document::TriangleRec> triangles{{1, 1, 1}};
    HandClock clock;
};

TEST(PrepareAnimationStep, ReadsBothFramesAndBeginsWithAWholeCopyOfTheStart) {
    Prepared prepared(fullPlay());
    prepared.step();
    const PlaybackSet& set = prepared.set;
    PlayerRec first;
    first.x = 10;
    first.y = 20;
    first.txt = "4";
    first.body = 1;
    first.angle = 90;
    first.skin = 5;
    ASSERT_EQ(set.offAnimStart.size(), 2U);
    EXPECT_EQ(set.offAnimStart[0], first);
    EXPECT_EQ(set.offAnimCur, set.offAnimStart);
    EXPECT_EQ(set.offAnimEnd[0].x, 11);
    EXPECT_EQ(set.offAnimEnd[1].y, 42);
    ASSERT_EQ(set.defAnimStart.size(), 1U);
    EXPECT_EQ(set.defAnimStart[0].txt, "D4");
    EXPECT_EQ(set.defAnimCur, set.defAnimStart);
    EXPECT_EQ(set.defAnimEnd[0].x, 51);
    EXPECT_EQ(set.ballAnimStart[0].x, 70);
    EXPECT_EQ(set.ballAnimEnd[0].y, 81);
    EXPECT_EQ(set.ballAnimCur, set.ballAnimStart);
}

TEST(PrepareAnimationStep, ReadsThePathsOfTheStartFrame) {
    Prepared prepared(fullPlay());
    prepared.step();
    const PlaybackSet& set = prepared.set;
    EXPECT_EQ(set.offAnimPaths, (std::vector<PathRec>{{1, {{30, 40}, {31, 41}, {32, 42}}}}));
    EXPECT_EQ(set.defAnimPaths, (std::vector<PathRec>{{0, {{50, 60}, {51, 61}}}}));
    EXPECT_EQ(set.ballAnimPaths, (std::vector<PathRec>{{0, {{70, 80}, {71, 81}}}}));
}

TEST(PrepareAnimationStep, PutsTheTrianglesOfTheStartFrameOnTheBoard) {
    Prepared prepared(fullPlay());
    prepared.step();
    EXPECT_EQ(prepared.triangles, (std::vector<document::TriangleRec>{{5, 6, 255}}));
}

TEST(PrepareAnimationStep, CountsFromZeroInStepsOfThreeAndLeavesTheTimer) {
    Prepared prepared(fullPlay());
    prepared.set.animTick = 77;
    prepared.step();
    EXPECT_EQ(prepared.set.animTick, 0);
    EXPECT_EQ(prepared.set.animStepSize, 3);
    EXPECT_TRUE(prepared.clock.enabled());
}

TEST(PrepareAnimationStep, AtOrPastTheLastFrameItOnlyTurnsTheTimerOff) {
    for (const std::int16_t animFrame : {std::int16_t{2}, std::int16_t{3}}) {
        Prepared prepared(fullPlay(), animFrame, 2);
        prepared.set.animTick = 9;
        prepared.step();
        EXPECT_FALSE(prepared.clock.enabled());
        EXPECT_EQ(prepared.set.animTick, 9);
        EXPECT_EQ(prepared.set.offAnimStart[0], document::emptyPlayer());
        EXPECT_EQ(prepared.triangles, (std::vector<document::TriangleRec>{{1, 1, 1}}));
    }
}

TEST(PrepareAnimationStep, WhatTheFramesLackIsTheEmptyRecord) {
    Prepared prepared(fullPlay());
    prepared.step();
    prepared.set.animFrame = 7;
    prepared.set.animLastFrame = 9;
    prepared.step();
    const PlaybackSet& set = prepared.set;
    for (const auto* players :
         {&set.offAnimStart, &set.offAnimEnd, &set.offAnimCur, &set.defAnimStart, &set.defAnimEnd,
          &set.defAnimCur, &set.ballAnimStart, &set.ballAnimEnd, &set.ballAnimCur}) {
        EXPECT_EQ(*players, std::vector<PlayerRec>{document::emptyPlayer()});
    }
    for (const auto* paths : {&set.offAnimPaths, &set.defAnimPaths, &set.ballAnimPaths}) {
        EXPECT_EQ(*paths, std::vector<PathRec>{document::emptyPath()});
    }
    EXPECT_FALSE(document::hasTriangles(prepared.triangles));
}

TEST(PrepareAnimationStep, ClearsNoFlagAndSetsTheBallsOnlyWithoutABall) {
    Prepared with(fullPlay());
    with.set.animOffDone = true;
    with.step();
    EXPECT_TRUE(with.set.animOffDone);
    EXPECT_FALSE(with.set.animDefDone);
    EXPECT_FALSE(with.set.animBallDone);
    Prepared without(test::threeFrames());
    without.step();
    EXPECT_TRUE(without.set.animBallDone);
}

TEST(PrepareAnimationStep, OfTwoBallsAndThenOneTheSecondLeavesTheStep) {
    Prepared prepared(configOf(0, 0) + frameHead(1) + "Ball0=10,10,\nBall1=20,20,\n" + frameHead(2)
                      + "Ball0=40,10,\n");
    prepared.step();
    EXPECT_EQ(prepared.set.ballAnimStart.size(), 1U);
    EXPECT_EQ(prepared.set.ballAnimCur.size(), 1U);
    prepared.set.animTick = 1;
    stepPlayers(prepared.set);
    EXPECT_EQ(prepared.set.ballAnimCur[0].x, 13);
}

TEST(PrepareAnimationStep, OfOneBallAndThenTwoTheSecondEndIsCut) {
    Prepared prepared(configOf(0, 0) + frameHead(1) + "Ball0=10,10,\n" + frameHead(2)
                      + "Ball0=40,10,\nBall1=20,20,\n");
    prepared.step();
    EXPECT_EQ(prepared.set.ballAnimEnd.size(), 1U);
}

// Ball 1 leaves the step, yet its path stays: the paths are cut to the number of balls before the cut.
TEST(PrepareAnimationStep, BallPathsAreCutToTheUncutNumberOfBalls) {
    Prepared prepared(
        configOf(0, 0) + frameHead(1)
        + "Ball0=10,10,\nBall1=20,20,\nBall0curve=1,1,2,2,\nBall1curve=3,3,4,4,\nBall7curve=5,5,6,6,\n"
        + frameHead(2) + "Ball0=40,10,\n");
    prepared.step();
    EXPECT_EQ(prepared.set.ballAnimStart.size(), 1U);
    ASSERT_EQ(prepared.set.ballAnimPaths.size(), 2U);
    EXPECT_EQ(prepared.set.ballAnimPaths[1].owner, 1);
}

TEST(PrepareAnimationStep, BallsAreReadAfreshEachTime) {
    Prepared prepared(fullPlay() + frameHead(3));
    prepared.step();
    prepared.set.animFrame = 2;
    prepared.set.animLastFrame = 3;
    prepared.step();
    EXPECT_EQ(prepared.set.ballAnimStart[0].x, 71);
    EXPECT_EQ(prepared.set.ballAnimEnd[0].y, 1000);
    EXPECT_EQ(prepared.set.ballAnimPaths[0], document::emptyPath());
}

TEST(PrepareLastFrameStep, TheEndIsTheStartAndTheTrianglesStay) {
    Prepared prepared(fullPlay(), 1, 1);
    prepared.lastStep();
    const PlaybackSet& set = prepared.set;
    EXPECT_EQ(set.offAnimEnd, set.offAnimStart);
    EXPECT_EQ(set.offAnimCur, set.offAnimStart);
    EXPECT_EQ(set.defAnimEnd, set.defAnimStart);
    EXPECT_EQ(set.ballAnimEnd, set.ballAnimStart);
    EXPECT_EQ(set.offAnimPaths.size(), 1U);
    EXPECT_EQ(set.animStepSize, 3);
    EXPECT_EQ(prepared.triangles, (std::vector<document::TriangleRec>{{1, 1, 1}}));
    EXPECT_TRUE(prepared.clock.enabled());
}

TEST(PrepareLastFrameStep, APlayerFollowsHisPathAndJumpsBack) {
    Prepared prepared(fullPlay(), 1, 1);
    prepared.lastStep();
    PlaybackSet& set = prepared.set;
    const PointF seen[] = {{31, 41}, {32, 42}, {30, 40}};
    for (const PointF& place : seen) {
        ++set.animTick;
        EXPECT_FALSE(set.animOffDone);
        stepPlayers(set);
        EXPECT_EQ((PointF{set.offAnimCur[1].x, set.offAnimCur[1].y}), place);
        EXPECT_EQ(set.offAnimCur[0].x, 10);
    }
    EXPECT_TRUE(set.animOffDone);
}

TEST(ReadClosingPaths, AsksEachGroupAndResetsWhatItDoesNotFind) {
    Prepared prepared(fullPlay());
    prepared.step();
    EXPECT_TRUE(readClosingPaths(prepared.set, prepared.play.file));
    prepared.set.animFrame = 2;
    EXPECT_FALSE(readClosingPaths(prepared.set, prepared.play.file));
    EXPECT_EQ(prepared.set.offAnimPaths, std::vector<PathRec>{document::emptyPath()});
    for (const char* key : {"off0curve=9,9,8,8,\n", "def0curve=9,9,8,8,\n", "Ball0curve=9,9,8,8,\n"}) {
        Prepared one(configOf(1, 1) + frameHead(1) + "off0=1,1\ndef0=2,2\nBall0=3,3,\n" + key, 1, 1);
        EXPECT_TRUE(readClosingPaths(one.set, one.play.file)) << key;
    }
}

} // namespace
} // namespace zeltrona::animation
