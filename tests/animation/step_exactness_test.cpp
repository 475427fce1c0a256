#include "animation/step_players.h"
#include "tests/animation/playback_builders.h"

#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace zeltrona::animation {
namespace {

using document::PointF;
using test::playerAt;
using test::StepBuilder;

constexpr std::uint64_t kSeed = 20261121;
constexpr int kPairs = 1'000'000;

/// The tick in which a straight move arrives, from its length alone: every tick is 3 units, and a place
/// within half a float of the end has arrived.
int ticksOfDistance(PointF start, PointF end) {
    const long double dx = static_cast<long double>(end.x) - start.x;
    const long double dy = static_cast<long double>(end.y) - start.y;
    const long double distance = std::hypot(dx, dy);
    const int ticks = std::max(1, static_cast<int>(std::ceil(distance / 3.0L)));
    const long double before = static_cast<long double>(ticks - 1) * 3.0L;
    const auto x = static_cast<float>(start.x + (distance > 0 ? dx / distance : 0.0L) * before);
    const auto y = static_cast<float>(start.y + (distance > 0 ? dy / distance : 0.0L) * before);
    const bool early = ticks > 1 && (dx != 0 ? x == end.x : y == end.y);
    return early ? ticks - 1 : ticks;
}

/// At the left edge a last bit of the double keeps an object that has come exactly its distance from being at
/// 0: such a move may take one tick more.
bool mayHangAtTheEdge(const PointF& start, const PointF& end) {
    const long double distance =
        std::hypot(static_cast<long double>(end.x) - start.x, static_cast<long double>(end.y) - start.y);
    return end.x == 0.0F && std::fmod(distance, 3.0L) == 0.0L;
}

/// Whole numbers, and quarters as a drag leaves them.
PointF randomPlace(std::mt19937_64& random) {
    std::uniform_int_distribution<int> across(0, 532 * 4);
    std::uniform_int_distribution<int> down(0, 332 * 4);
    const bool whole = random() % 2 == 0;
    const int x = across(random);
    const int y = down(random);
    return whole ? PointF{static_cast<float>(x / 4), static_cast<float>(y / 4)}
                 : PointF{static_cast<float>(x) / 4.0F, static_cast<float>(y) / 4.0F};
}

struct Pair {
    PointF start;
    PointF end;
};

Pair randomPair(std::mt19937_64& random) {
    Pair pair{randomPlace(random), randomPlace(random)};
    const auto kind = random() % 8;
    if (kind == 0) {
        pair.end.x = pair.start.x;
    } else if (kind == 1) {
        pair.end.y = pair.start.y;
    }
    return pair;
}

void place(PlaybackSet& set, const Pair& pair) {
    set.offAnimStart[0].x = set.offAnimCur[0].x = pair.start.x;
    set.offAnimStart[0].y = set.offAnimCur[0].y = pair.start.y;
    set.offAnimEnd[0].x = pair.end.x;
    set.offAnimEnd[0].y = pair.end.y;
    set.animOffDone = false;
}

std::string nameOf(const Pair& pair) {
    return "seed " + std::to_string(kSeed) + ": (" + std::to_string(pair.start.x) + ", "
           + std::to_string(pair.start.y) + ") to (" + std::to_string(pair.end.x) + ", "
           + std::to_string(pair.end.y) + ")";
}

bool doneAtTick(PlaybackSet& set, int tick) {
    set.animTick = tick;
    stepPlayers(set);
    return set.animOffDone;
}

// A straight position depends on the tick alone, so the last two ticks tell where the step ends.
TEST(StepExactness, AMillionMovesEndInTheTickThatTheDistanceSays) {
    std::mt19937_64 random(kSeed);
    PlaybackSet set = StepBuilder().offence({playerAt(0, 0)}, {playerAt(0, 0)}).set;
    for (int i = 0; i < kPairs; ++i) {
        const Pair pair = randomPair(random);
        place(set, pair);
        const int ticks = ticksOfDistance(pair.start, pair.end);
        if (ticks > 1) {
            ASSERT_FALSE(doneAtTick(set, ticks - 1)) << nameOf(pair);
        }
        const bool inTime = doneAtTick(set, ticks);
        ASSERT_TRUE(inTime || (mayHangAtTheEdge(pair.start, pair.end) && doneAtTick(set, ticks + 1)))
            << nameOf(pair);
        ASSERT_EQ(set.offAnimCur[0].x, pair.end.x);
        ASSERT_EQ(set.offAnimCur[0].y, pair.end.y);
    }
}

TEST(StepExactness, MovesRunTickByTickEndOnceAndStayWithinTheirTick) {
    std::mt19937_64 random(kSeed + 1);
    PlaybackSet set = StepBuilder().offence({playerAt(0, 0)}, {playerAt(0, 0)}).set;
    for (int i = 0; i < 10'000; ++i) {
        const Pair pair = randomPair(random);
        place(set, pair);
        const int ticks = ticksOfDistance(pair.start, pair.end);
        for (int tick = 1; tick <= ticks; ++tick) {
            ASSERT_EQ(doneAtTick(set, tick), tick == ticks) << nameOf(pair) << " tick " << tick;
            const double gone = std::hypot(double{set.offAnimCur[0].x} - double{pair.start.x},
                                           double{set.offAnimCur[0].y} - double{pair.start.y});
            ASSERT_LT(gone, 3.0 * tick + 0.2) << nameOf(pair) << " tick " << tick;
        }
    }
}

struct BitRow {
    PointF start;
    PointF end;
    int tick;
    std::uint32_t x;
    std::uint32_t y;
};

// Worked out apart from this program with 60 decimal digits and one rounding to 32 bits on store; the y of a
// row is formed from the x as stored.
TEST(StepExactness, PositionsHaveTheBitsOfOneRounding) {
    const BitRow rows[] = {
#include "tests/animation/step_bits.inc"
    };
    for (const BitRow& row : rows) {
        const Pair pair{row.start, row.end};
        PlaybackSet set = StepBuilder().offence({playerAt(0, 0)}, {playerAt(0, 0)}).set;
        place(set, pair);
        set.animTick = row.tick;
        stepPlayers(set);
        EXPECT_EQ(std::bit_cast<std::uint32_t>(set.offAnimCur[0].x), row.x)
            << nameOf(pair) << " " << row.tick;
        EXPECT_EQ(std::bit_cast<std::uint32_t>(set.offAnimCur[0].y), row.y)
            << nameOf(pair) << " " << row.tick;
    }
}

TEST(StepExactness, MovesToTheUpperAndTheLeftEdgeEnd) {
    PlaybackSet set = StepBuilder().offence({playerAt(0, 0)}, {playerAt(0, 0)}).set;
    for (int x = 1; x <= 532; ++x) {
        for (int y = 1; y <= 332; y += 3) {
            const PointF from{static_cast<float>(x), static_cast<float>(y)};
            for (const PointF to : {PointF{0, 0}, PointF{0, 150}, PointF{250, 0}}) {
                const Pair pair{from, to};
                place(set, pair);
                ASSERT_TRUE(doneAtTick(set, ticksOfDistance(from, to) + 1)) << nameOf(pair);
            }
        }
    }
}

// A fused multiply-add would skip the rounding of the product, and each of these would come out a bit off.
TEST(StepExactness, ProductsAreRoundedBeforeTheSum) {
    struct FusedRow {
        Pair pair;
        int tick;
        float y;
    };
    const FusedRow rows[] = {
        {{{14.75F, 304.25F}, {22.25F, 70.5F}}, 76, 0x1.31781cp+6F},
        {{{114.5F, 313.25F}, {338.5F, 78.25F}}, 97, 0x1.9a71ccp+6F},
        {{{12, 284}, {9, 70}}, 55, 0x1.dc109cp+6F},
        {{{156, 253.25F}, {175, 14}}, 53, 0x1.7aff0cp+6F},
    };
    for (const FusedRow& row : rows) {
        PlaybackSet set = StepBuilder().offence({playerAt(0, 0)}, {playerAt(0, 0)}).set;
        place(set, row.pair);
        doneAtTick(set, row.tick);
        const PlayerRec& cur = set.offAnimCur[0];
        EXPECT_EQ(cur.y, row.y) << nameOf(row.pair);
        const double slope = (double{row.pair.end.y} - double{row.pair.start.y})
                             / (double{row.pair.end.x} - double{row.pair.start.x});
        const double run = double{cur.x} - double{row.pair.start.x};
        EXPECT_NE(static_cast<float>(std::fma(slope, run, double{row.pair.start.y})), row.y)
            << "the row no longer tells the two apart";
    }
}

// Formed in float, this diagonal stops a hair short of its end and its step never ends.
TEST(StepExactness, ADiagonalThatFloatArithmeticMissesEnds) {
    int missedByFloat = 0;
    std::mt19937_64 random(kSeed + 2);
    PlaybackSet set = StepBuilder().offence({playerAt(0, 0)}, {playerAt(0, 0)}).set;
    for (int i = 0; i < 10'000; ++i) {
        const Pair pair = randomPair(random);
        if (pair.start.x == pair.end.x || pair.start.y == pair.end.y) {
            continue;
        }
        const float slope = (pair.end.y - pair.start.y) / (pair.end.x - pair.start.x);
        const float y = slope * (pair.end.x - pair.start.x) + pair.start.y;
        const bool short_ = pair.end.y > pair.start.y ? y < pair.end.y : y > pair.end.y;
        missedByFloat += short_ ? 1 : 0;
        place(set, pair);
        ASSERT_TRUE(doneAtTick(set, ticksOfDistance(pair.start, pair.end))) << nameOf(pair);
    }
    EXPECT_GT(missedByFloat, 100) << "the sample no longer holds what it is for";
}

} // namespace
} // namespace zeltrona::animation
