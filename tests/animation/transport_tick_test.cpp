#include "animation/transport.h"
#include "tests/animation/playback_builders.h"
#include "tests/animation/transport_bench.h"

#include <gtest/gtest.h>

namespace zeltrona::animation {
namespace {

using test::configOf;
using test::frameHead;
using test::threeFrames;
using test::TransportBench;
using Calls = std::vector<std::string>;

/// Two frames a step of three units apart; the last has paths when `lastPaths` says so.
std::string shortPlay(const std::string& lastPaths = {}) {
    return configOf(1, 0) + frameHead(1) + "off0=10,10\n" + frameHead(2) + "off0=13,10\n" + lastPaths;
}

TEST(Timer1Timer, CountsStepsAndPaintsInThisOrder) {
    TransportBench bench(threeFrames());
    cmdAnimPlay_Click(bench.transport);
    bench.host.onDraw = [&bench] {
        EXPECT_EQ(bench.set.animTick, 1);
        EXPECT_EQ(bench.set.offAnimCur[0].x, 13);
    };
    bench.tick();
    EXPECT_EQ(bench.host.calls, (Calls{"counter 1/3", "draw"}));
}

TEST(Timer1Timer, TheFullScreenGetsCounterAndPictureWhileOpen) {
    TransportBench bench(shortPlay());
    bench.session.fullScreenOpen = true;
    cmdAnimPlay_Click(bench.transport);
    bench.tick();
    EXPECT_EQ(bench.host.calls,
              (Calls{"counter 1/2", "full screen counter 1/2", "draw", "full screen picture", "counter 2/2",
                     "full screen counter 2/2", "counter 2/2", "full screen counter 2/2"}));
}

TEST(Timer1Timer, AStepThatIsOverClearsTheFlagsAndPreparesTheNext) {
    TransportBench bench(threeFrames());
    cmdAnimPlay_Click(bench.transport);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(bench.set.animFrame, 1);
        bench.tick();
    }
    EXPECT_EQ(bench.set.animFrame, 2);
    EXPECT_EQ(bench.set.animTick, 0);
    EXPECT_FALSE(bench.set.animOffDone);
    EXPECT_FALSE(bench.set.animDefDone);
    EXPECT_TRUE(bench.set.animBallDone) << "the step prepared next has no ball";
    EXPECT_EQ(bench.host.counter, "2/3");
    EXPECT_EQ(bench.set.offAnimEnd[0].y, 70);
    EXPECT_TRUE(bench.clock.enabled());
}

TEST(Timer1Timer, WithoutPathsInTheLastFrameThePlayEndsWithTheStepIntoIt) {
    TransportBench bench(threeFrames());
    cmdAnimPlay_Click(bench.transport);
    EXPECT_EQ(bench.run(), 30);
    EXPECT_EQ(bench.set.animFrame, 3);
    EXPECT_EQ(bench.set.animTick, 0);
    EXPECT_EQ(bench.host.counter, "3/3");
    EXPECT_EQ(bench.host.calls.back(), "counter 3/3");
    EXPECT_EQ(bench.session.currFrame, 1);
}

TEST(Timer1Timer, PathsInTheLastFrameArePlayedByAClosingStep) {
    for (const char* paths : {"off0curve=13,10,50,50,60,60,\n", "def0curve=13,10,50,50,60,60,\n",
                              "Ball0curve=13,10,50,50,60,60,\n"}) {
        TransportBench bench(shortPlay(paths));
        cmdAnimPlay_Click(bench.transport);
        bench.tick();
        EXPECT_EQ(bench.set.animFrame, 2) << paths;
        EXPECT_TRUE(bench.clock.enabled()) << paths;
        EXPECT_EQ(bench.host.counter, "2/2");
        bench.run();
        EXPECT_EQ(bench.set.animFrame, 3) << paths;
        EXPECT_EQ(bench.host.counter, "2/2") << paths;
    }
}

TEST(Timer1Timer, TheClosingStepShowsThePathAndJumpsBack) {
    TransportBench bench(shortPlay("off0curve=13,10,50,50,60,60,\n"));
    cmdAnimPlay_Click(bench.transport);
    std::vector<float> seen;
    bench.host.onDraw = [&bench, &seen] { seen.push_back(bench.set.offAnimCur[0].x); };
    EXPECT_EQ(bench.run(), 4);
    EXPECT_EQ(seen, (std::vector<float>{13, 50, 60, 13}));
}

TEST(Timer1Timer, TheClosingStepKeepsTheTrianglesOfTheStepBefore) {
    TransportBench bench(configOf(1, 0) + frameHead(1) + "off0=10,10\nTriangle0=1,2,3,\n" + frameHead(2)
                         + "off0=13,10\noff0curve=13,10,50,50,\nTriangle0=4,5,6,\n");
    cmdAnimPlay_Click(bench.transport);
    bench.run();
    EXPECT_EQ(bench.frame.triangles, (std::vector<document::TriangleRec>{{2, 3, 1}}));
}

TEST(Timer1Timer, TheNextFramesTrianglesAppearAtTheFrameChange) {
    TransportBench bench(configOf(1, 0) + frameHead(1) + "off0=10,10\nTriangle0=1,2,3,\n" + frameHead(2)
                         + "off0=13,10\nTriangle0=4,5,6,\n" + frameHead(3) + "off0=16,10\n");
    cmdAnimPlay_Click(bench.transport);
    bench.host.onDraw = [&bench] { EXPECT_EQ(bench.frame.triangles[0].color, 1); };
    bench.tick();
    bench.host.onDraw = [&bench] { EXPECT_EQ(bench.frame.triangles[0].color, 4); };
    bench.tick();
}

TEST(Timer1Timer, PastTheEndWithoutLoopTheTickGoesOnWithTheTimerOff) {
    TransportBench bench(shortPlay());
    cmdAnimPlay_Click(bench.transport);
    bench.run();
    bench.set.animFrame = 3;
    bench.set.animTick = 40;
    bench.clock.setEnabled(true);
    bench.host.calls.clear();
    bench.host.onDraw = [&bench] {
        EXPECT_FALSE(bench.clock.enabled());
        EXPECT_EQ(bench.set.animTick, 1);
    };
    bench.tick();
    EXPECT_EQ(bench.host.calls[0], "counter 3/2");
    EXPECT_EQ(bench.host.calls[1], "draw");
    EXPECT_FALSE(bench.clock.enabled());
}

TEST(Timer1Timer, PastTheEndWithLoopTheTickPlaysAndEnds) {
    TransportBench bench(shortPlay());
    bench.session.animLoop = true;
    bench.set.animFrame = 3;
    bench.set.animLastFrame = 2;
    bench.clock.setEnabled(true);
    bench.tick();
    EXPECT_EQ(bench.host.calls, Calls{"counter 3/2"});
    EXPECT_EQ(bench.set.animFrame, 1);
    EXPECT_TRUE(bench.clock.enabled());
    EXPECT_EQ(bench.set.animTick, 0);
}

TEST(Timer1Timer, WithLoopTheEndStartsAgainInTheSameTick) {
    TransportBench bench(threeFrames());
    bench.session.animLoop = true;
    bench.host.speed = "9";
    cmdAnimPlay_Click(bench.transport);
    for (int round = 0; round < 3; ++round) {
        for (int i = 0; i < 30; ++i) {
            ASSERT_TRUE(bench.clock.enabled());
            bench.tick();
        }
        EXPECT_EQ(bench.set.animFrame, 1);
        EXPECT_EQ(bench.set.animTick, 0);
        EXPECT_EQ(bench.set.offAnimEnd[0].x, 40);
    }
}

TEST(Timer1Timer, LoopOnASingleFrameComesToRest) {
    TransportBench bench(configOf(1, 0) + frameHead(1) + "off0=10,10\n");
    bench.session.animLoop = true;
    cmdAnimPlay_Click(bench.transport);
    EXPECT_EQ(bench.run(100), 0);
    cmdAnimFirst_Click(bench.transport);
    EXPECT_EQ(bench.run(100), 1);
}

TEST(Timer1Timer, TheTickCounterWrapsAt32200) {
    TransportBench bench(configOf(1, 0) + frameHead(1) + "off0=10,10\n" + frameHead(2) + "off0=400,10\n");
    cmdAnimPlay_Click(bench.transport);
    bench.set.offAnimEnd[0].x = 200000;
    bench.set.animTick = 32199;
    bench.tick();
    EXPECT_EQ(bench.set.animTick, 32200);
    EXPECT_EQ(bench.set.offAnimCur[0].x, 10 + 96600);
    bench.tick();
    EXPECT_EQ(bench.set.animTick, 1);
    EXPECT_EQ(bench.set.offAnimCur[0].x, 13) << "the distance restarts from one step";
}

TEST(Timer1Timer, ASmallerTeamInTheNextFrameEndsThePlayWithAnErrorBox) {
    TransportBench bench(configOf(2, 0) + frameHead(1) + "off0=10,10\noff1=10,50\nTriangle0=1,2,3,\n"
                         + frameHead(2) + "off0=13,10\n");
    bench.session.currFrame = 2;
    bench.frame.offPlayers = {test::playerAt(99, 98)};
    cmdAnimPlay_Click(bench.transport);
    const auto before = bench.frame.offPlayers;
    bench.tick();
    EXPECT_FALSE(bench.clock.enabled());
    EXPECT_EQ(bench.host.calls, (Calls{"counter 1/2", "redraw", "error box"}));
    EXPECT_EQ(bench.host.error, kSubscriptOutOfRange);
    EXPECT_EQ(bench.session.currFrame, 2);
    EXPECT_EQ(bench.frame.offPlayers, before) << "edits that are not stored stay";
    EXPECT_FALSE(document::hasTriangles(bench.frame.triangles)) << "frame 2 has none";
    cmdAnimPause_Click(bench.transport);
    bench.tick();
    EXPECT_FALSE(bench.clock.enabled()) << "going on says it again and stops again";
}

TEST(Timer1Timer, ALargerTeamInTheNextFrameIsNoError) {
    TransportBench bench(configOf(2, 0) + frameHead(1) + "off0=10,10\n" + frameHead(2)
                         + "off0=13,10\noff1=50,50\n");
    cmdAnimPlay_Click(bench.transport);
    EXPECT_EQ(bench.run(), 1);
    EXPECT_EQ(bench.host.error, kNoError);
}

TEST(Timer1Timer, ACounterAtTheEndOfItsRangeIsAnError) {
    TransportBench bench(shortPlay());
    bench.set.animFrame = 32767;
    bench.set.animLastFrame = 32767;
    bench.clock.setEnabled(true);
    bench.tick();
    EXPECT_EQ(bench.host.error, kOverflow);
    EXPECT_FALSE(bench.clock.enabled());
}

} // namespace
} // namespace zeltrona::animation
