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
using ::testing::Test;

using Click = void (*)(Transport&);

/// One frame with one attacker.
std::string oneFrame(const std::string& more = {}) {
    return configOf(1, 0) + frameHead(1) + "off0=10,10\n" + more;
}

struct ClickRow {
    const char* name;
    Click click;
    std::int16_t from;   ///< animFrame before, of three frames
    std::int16_t wanted; ///< animFrame after
    bool runs;
    std::int32_t animTick;
};

TEST(Transport, JumpsLandWhereTheyShouldAndKeepPlaying) {
    const ClickRow rows[] = {
        {"First", cmdAnimFirst_Click, 2, 1, true, 0},
        {"Prev from 2", cmdAnimPrev_Click, 2, 1, true, 0},
        {"Prev from 1 stays", cmdAnimPrev_Click, 1, 1, true, 0},
        {"Prev from 0", cmdAnimPrev_Click, 0, 1, true, 0},
        {"Prev from the closing step", cmdAnimPrev_Click, 3, 2, true, 0},
        {"Next from 1", cmdAnimNext_Click, 1, 2, true, 0},
        {"Next from 2 lands on the last frame", cmdAnimNext_Click, 2, 3, false, 5},
        {"Next at the last frame", cmdAnimNext_Click, 3, 3, false, 5},
        {"Next past the end", cmdAnimNext_Click, 4, 3, false, 5},
        {"Last", cmdAnimLast_Click, 1, 2, true, 0},
        {"Play", cmdAnimPlay_Click, 3, 1, true, 0},
    };
    for (const ClickRow& row : rows) {
        for (const bool wasRunning : {false, true}) {
            SCOPED_TRACE(std::string(row.name) + (wasRunning ? ", running" : ", still"));
            TransportBench bench(threeFrames());
            bench.set.animFrame = row.from;
            bench.set.animTick = 5;
            bench.clock.setEnabled(wasRunning);
            row.click(bench.transport);
            EXPECT_EQ(bench.set.animFrame, row.wanted);
            EXPECT_EQ(bench.set.animLastFrame, 3);
            EXPECT_EQ(bench.clock.enabled(), row.runs);
            EXPECT_EQ(bench.set.animTick, row.animTick);
            EXPECT_TRUE(bench.host.calls.empty()) << "nothing is shown before the next tick";
        }
    }
}

TEST(Transport, PlayCountsPreparesAndSetsTheInterval) {
    TransportBench bench(threeFrames());
    bench.host.speed = "9";
    cmdAnimPlay_Click(bench.transport);
    EXPECT_EQ(bench.clock.interval(), 2);
    EXPECT_TRUE(bench.clock.runs());
    EXPECT_EQ(bench.set.offAnimEnd[0].x, 40);
    EXPECT_EQ(bench.session.currFrame, 1) << "the editing position stays";
}

TEST(Transport, PlayOfASingleFrameTurnsTheTimerOffAtOnce) {
    TransportBench bench(oneFrame("off0curve=10,10,20,20,\n"));
    cmdAnimPlay_Click(bench.transport);
    EXPECT_FALSE(bench.clock.enabled());
    EXPECT_EQ(bench.run(), 0);
}

TEST(Transport, PlayOfAPlayWithoutFramesStaysOff) {
    TransportBench bench("[Config]\n");
    cmdAnimPlay_Click(bench.transport);
    EXPECT_FALSE(bench.clock.enabled());
    EXPECT_EQ(bench.set.animLastFrame, 0);
}

TEST(Transport, JumpsOnASingleFrameEndWithTheNextTick) {
    for (const Click click : {cmdAnimFirst_Click, cmdAnimPrev_Click}) {
        TransportBench bench(oneFrame());
        click(bench.transport);
        EXPECT_TRUE(bench.clock.enabled());
        EXPECT_EQ(bench.run(), 1);
        EXPECT_EQ(bench.host.counter, "1/1");
    }
}

TEST(Transport, LastOnASingleFramePreparesFromFrameZero) {
    TransportBench bench(oneFrame());
    cmdAnimLast_Click(bench.transport);
    EXPECT_EQ(bench.set.animFrame, 0);
    EXPECT_TRUE(bench.clock.enabled());
    EXPECT_EQ(bench.set.offAnimStart, std::vector<PlayerRec>{document::emptyPlayer()});
    EXPECT_EQ(bench.set.offAnimEnd[0].x, 10);
    EXPECT_GT(bench.run(), 1);
    EXPECT_EQ(bench.host.counter, "1/1");
}

TEST(Transport, PauseTogglesTheTimerAndNothingElse) {
    TransportBench bench(threeFrames());
    cmdAnimPlay_Click(bench.transport);
    bench.tick();
    bench.tick();
    const std::vector<PlayerRec> seen = bench.set.offAnimCur;
    cmdAnimPause_Click(bench.transport);
    EXPECT_FALSE(bench.clock.enabled());
    EXPECT_EQ(bench.set.animTick, 2);
    cmdAnimPause_Click(bench.transport);
    EXPECT_TRUE(bench.clock.enabled());
    EXPECT_EQ(bench.set.offAnimCur, seen);
    bench.tick();
    EXPECT_EQ(bench.set.animTick, 3);
    EXPECT_EQ(bench.set.offAnimCur[0].x, 19) << "no jump";
}

TEST(Transport, PauseOnAFreshPlayShowsNoughtOfNoughtAndStopsAtTheNextTick) {
    TransportBench bench(threeFrames());
    cmdAnimPause_Click(bench.transport);
    EXPECT_TRUE(bench.clock.enabled());
    bench.tick();
    EXPECT_EQ(bench.host.counter, "0/0");
    EXPECT_FALSE(bench.clock.enabled());
}

TEST(Transport, StopClicksTheSequenceDownFromFrameTwo) {
    TransportBench bench(threeFrames());
    bench.session.currFrame = 3;
    cmdAnimPlay_Click(bench.transport);
    bench.set.animFrame = 2;
    cmdAnimStop_Click(bench.transport);
    EXPECT_FALSE(bench.clock.enabled());
    EXPECT_EQ(bench.set.animFrame, 1);
    EXPECT_EQ(bench.session.currFrame, 2) << "the click of the host goes down from here";
    EXPECT_EQ(bench.host.calls, std::vector<std::string>{"sequence down"});
}

TEST(Transport, UpAndDownChangeTextAndInterval) {
    TransportBench bench(threeFrames());
    cmdAnimUp_Click(bench.transport);
    EXPECT_EQ(bench.host.speed, "4");
    EXPECT_EQ(bench.clock.interval(), 20);
    cmdAnimDown_Click(bench.transport);
    cmdAnimDown_Click(bench.transport);
    EXPECT_EQ(bench.host.speed, "2");
    EXPECT_EQ(bench.clock.interval(), 80);
}

TEST(Transport, UpAtNineAndDownAtOneStayWithoutTheChangeEvent) {
    TransportBench bench(threeFrames());
    int changes = 0;
    bench.host.onSpeedChange = [&changes] { ++changes; };
    bench.host.speed = "9";
    cmdAnimUp_Click(bench.transport);
    EXPECT_EQ(bench.host.speed, "9");
    EXPECT_EQ(bench.clock.interval(), 2);
    bench.host.speed = "1";
    cmdAnimDown_Click(bench.transport);
    EXPECT_EQ(bench.host.speed, "1");
    EXPECT_EQ(bench.clock.interval(), 120);
    EXPECT_EQ(changes, 0);
}

TEST(Transport, TypingNoSpeedBecomesThreeAtFiftyMilliseconds) {
    for (const char* typed : {"0", "10", "x", ""}) {
        TransportBench bench(threeFrames());
        bench.host.speed = "9";
        txtAnimSpeed_Change(bench.transport);
        ASSERT_EQ(bench.clock.interval(), 2);
        bench.host.speed = typed;
        txtAnimSpeed_Change(bench.transport);
        EXPECT_EQ(bench.host.speed, "3") << typed;
        EXPECT_EQ(bench.clock.interval(), 50) << typed;
    }
}

TEST(Transport, ANumberThatIsNoDigitSilencesTheTimerUntilADigitComes) {
    TransportBench bench(threeFrames());
    cmdAnimPlay_Click(bench.transport);
    bench.host.speed = "5.5";
    txtAnimSpeed_Change(bench.transport);
    EXPECT_EQ(bench.host.speed, "5.5");
    EXPECT_TRUE(bench.clock.enabled());
    EXPECT_FALSE(bench.clock.runs());
    bench.host.speed = "5";
    txtAnimSpeed_Change(bench.transport);
    EXPECT_TRUE(bench.clock.runs());
}

TEST(Transport, TheLoopBoxTogglesTheLoop) {
    TransportBench bench(threeFrames());
    animCheckLoop_Click(bench.transport);
    EXPECT_TRUE(bench.session.animLoop);
    animCheckLoop_Click(bench.transport);
    EXPECT_FALSE(bench.session.animLoop);
}

// A side that had arrived before the jump holds back the next step no longer; the flags are cleared by a tick
// alone.
TEST(Transport, FlagsSurviveAJump) {
    TransportBench bench(configOf(1, 1) + frameHead(1) + "off0=10,10\ndef0=10,50\n" + frameHead(2)
                         + "off0=13,10\ndef0=310,50\n" + frameHead(3) + "off0=313,10\ndef0=313,50\n");
    cmdAnimPlay_Click(bench.transport);
    bench.tick();
    ASSERT_TRUE(bench.set.animOffDone);
    ASSERT_FALSE(bench.set.animDefDone);
    cmdAnimLast_Click(bench.transport);
    EXPECT_TRUE(bench.set.animOffDone);
    bench.tick();
    EXPECT_FALSE(bench.clock.enabled()) << "defence alone decided, and had three units to go";
    EXPECT_EQ(bench.set.offAnimCur[0].x, 16);
    EXPECT_FALSE(bench.set.animOffDone);
}

} // namespace
} // namespace zeltrona::animation
