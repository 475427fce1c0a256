#include "tests/animation/transport_bench.h"

#include <gtest/gtest.h>

namespace zeltrona::animation {
namespace {

using test::HandClock;

TEST(AnimTimer, BeginsOffWithoutAnInterval) {
    const HandClock clock;
    EXPECT_FALSE(clock.enabled());
    EXPECT_EQ(clock.interval(), 0);
    EXPECT_FALSE(clock.runs());
}

TEST(AnimTimer, AnIntervalOfZeroIsEnabledAndSilent) {
    HandClock clock;
    clock.setEnabled(true);
    EXPECT_TRUE(clock.enabled());
    EXPECT_FALSE(clock.runs());
    EXPECT_EQ(clock.starts, 0);
    clock.setInterval(50);
    EXPECT_TRUE(clock.runs());
    EXPECT_EQ(clock.starts, 1);
    clock.setInterval(0);
    EXPECT_TRUE(clock.enabled());
    EXPECT_FALSE(clock.runs());
    EXPECT_EQ(clock.stops, 1);
}

TEST(AnimTimer, SettingWhatIsSetDoesNotBeginTheIntervalAnew) {
    HandClock clock;
    clock.setInterval(20);
    clock.setEnabled(true);
    clock.setEnabled(true);
    clock.setInterval(20);
    EXPECT_EQ(clock.starts, 1);
    clock.setInterval(10);
    EXPECT_EQ(clock.starts, 2);
    clock.setEnabled(false);
    clock.setEnabled(false);
    EXPECT_EQ(clock.stops, 1);
}

} // namespace
} // namespace zeltrona::animation
