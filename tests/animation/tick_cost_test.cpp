#include "animation/step_players.h"
#include "tests/animation/playback_builders.h"
#include "tests/animation/transport_bench.h"

#include <atomic>
#include <cstdlib>
#include <gtest/gtest.h>
#include <new>

namespace {

std::atomic<long> allocations{0};
std::atomic<long> blocksInUse{0};

void* counted(std::size_t size) {
    ++allocations;
    ++blocksInUse;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void released(void* memory) {
    blocksInUse -= memory == nullptr ? 0 : 1;
    std::free(memory);
}

} // namespace

// Counts every allocation of the test program.
void* operator new(std::size_t size) {
    return counted(size);
}
void* operator new[](std::size_t size) {
    return counted(size);
}
void operator delete(void* memory) noexcept {
    released(memory);
}
void operator delete[](void* memory) noexcept {
    released(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    released(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    released(memory);
}

namespace zeltrona::animation {
namespace {

using test::configOf;
using test::frameHead;
using test::playerAt;
using test::StepBuilder;
using test::TransportBench;

/// A host that keeps nothing, so that what is counted is the transport's own.
class SilentHost : public TransportHost {
public:
    void showCounter(std::string_view) override {}
    void drawAnimationStep() override {}
    void updateFrameCurr(std::string_view) override {}
    void updatePic() override {}
    void cmdSeqNoDown_Click() override {}
    std::string speedText() const override { return "9"; }
    void setSpeedText(std::string_view) override {}
    void redrawBoard() override {}
    void showRunTimeError(const RunTimeError&) override {}
};

std::vector<PlayerRec> rowOf(int count, float y) {
    std::vector<PlayerRec> players;
    for (int i = 0; i < count; ++i) {
        players.push_back(playerAt(static_cast<float>(i) * 20.0F, y));
    }
    return players;
}

TEST(TickCost, TheCounterItselfCounts) {
    const long before = allocations;
    delete new int(4);
    EXPECT_EQ(allocations - before, 1);
}

TEST(TickCost, StepPlayersAllocatesNothing) {
    StepBuilder builder;
    builder.offence(rowOf(12, 10), rowOf(12, 300)).defence(rowOf(12, 20), rowOf(12, 250));
    builder.balls(rowOf(3, 30), rowOf(3, 200));
    builder.set.offAnimPaths = {test::longPath(0, 90), test::longPath(5, 40)};
    const long before = allocations;
    for (int i = 0; i < 200; ++i) {
        ++builder.set.animTick;
        stepPlayers(builder.set);
    }
    EXPECT_EQ(allocations, before);
}

TEST(TickCost, ATickBetweenFrameChangesAllocatesNothing) {
    TransportBench bench(configOf(2, 2) + frameHead(1) + "off0=0,10\noff1=0,20\ndef0=0,30\ndef1=0,40\n"
                         + frameHead(2) + "off0=320,10\noff1=320,20\ndef0=320,30\ndef1=320,40\n");
    SilentHost host;
    Transport transport{bench.set, bench.session, bench.frame, bench.play.file, bench.clock, host};
    bench.session.fullScreenOpen = true;
    cmdAnimPlay_Click(transport);
    const long before = allocations;
    for (int i = 0; i < 100; ++i) {
        Timer1_Timer(transport);
    }
    EXPECT_EQ(allocations, before);
    EXPECT_EQ(bench.set.animTick, 100);
}

TEST(TickCost, AMillionTicksOfALoopingPlayLeaveTheMemoryFlat) {
    TransportBench bench(configOf(1, 1) + frameHead(1)
                         + "off0=0,10\ndef0=9,9\nBall0=5,5,\noff0curve=0,10,5,5,9,9,\n" + frameHead(2)
                         + "off0=340,10\ndef0=9,300\nBall0=5,305,\nTriangle0=255,4,4,\n" + frameHead(3)
                         + "off0=340,310\ndef0=300,9\nBall0=5,5,\noff0curve=340,310,300,300,\n");
    SilentHost host;
    Transport transport{bench.set, bench.session, bench.frame, bench.play.file, bench.clock, host};
    bench.session.animLoop = true;
    cmdAnimPlay_Click(transport);
    const auto run = [&transport](int ticks) {
        for (int i = 0; i < ticks; ++i) {
            Timer1_Timer(transport);
        }
    };
    run(20'000);
    const long before = blocksInUse;
    run(1'000'000);
    EXPECT_TRUE(bench.clock.runs());
    EXPECT_LT(blocksInUse - before, 100)
        << "a few more where this tick stands in another frame, never a row of them";
}

} // namespace
} // namespace zeltrona::animation
