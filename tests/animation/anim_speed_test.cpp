#include "animation/anim_speed.h"

#include <array>
#include <gtest/gtest.h>

namespace zeltrona::animation {
namespace {

TEST(AnimSpeed, EachDigitHasItsInterval) {
    const std::array<int, 9> intervals{120, 80, 50, 20, 10, 9, 7, 5, 2};
    for (std::size_t i = 0; i < intervals.size(); ++i) {
        EXPECT_EQ(animIntervalOf(std::to_string(i + 1)), intervals[i]) << i + 1;
    }
}

TEST(AnimSpeed, AnyOtherTextHasNoInterval) {
    for (const char* text : {"", "0", "10", "x", " 3", "3 ", "03", "5.5", "-1", ":"}) {
        EXPECT_EQ(animIntervalOf(text), 0) << text;
    }
}

struct KeptRow {
    const char* typed;
    const char* kept;
    const char* keptFullScreen;
};

TEST(AnimSpeed, WhatIsNoSpeedBecomesThree) {
    const KeptRow rows[] = {
        {"1", "1", "1"},       {"9", "9", "9"},    {"0", "3", "3"},     {"10", "3", "3"},
        {"x", "3", "3"},       {"", "3", "3"},     {"-5", "3", "3"},    {"5x", "3", "3"},
        {"5.5", "5.5", "5.5"}, {"5.", "5.", "5."}, {"9.4", "9.4", "3"}, {"9.5", "3", "3"},
        {"0.6", "0.6", "3"},   {"0.5", "3", "3"},  {"65539", "3", "3"}, {"1e300", "3", "3"},
        {" 4 ", " 4 ", " 4 "}, {"04", "04", "04"},
    };
    for (const KeptRow& row : rows) {
        EXPECT_EQ(keptSpeedText(row.typed), row.kept) << row.typed;
        EXPECT_EQ(keptFullScreenSpeedText(row.typed), row.keptFullScreen) << row.typed;
    }
}

TEST(AnimSpeed, UpEndsAtNineAndDownAtOne) {
    EXPECT_EQ(speedTextUp("3"), "4");
    EXPECT_EQ(speedTextUp("8"), "9");
    EXPECT_EQ(speedTextUp("9"), "9");
    EXPECT_EQ(speedTextUp("8.5"), "9");
    EXPECT_EQ(speedTextDown("3"), "2");
    EXPECT_EQ(speedTextDown("2"), "1");
    EXPECT_EQ(speedTextDown("1"), "1");
    EXPECT_EQ(speedTextDown("1.5"), "1");
}

TEST(AnimSpeed, ThePlainTextPassesTheEnds) {
    EXPECT_EQ(plainSpeedText("8", 1), "9");
    EXPECT_EQ(plainSpeedText("1", -1), "0");
    EXPECT_TRUE(isFastestSpeed("9"));
    EXPECT_TRUE(isFastestSpeed("9.4"));
    EXPECT_FALSE(isFastestSpeed("8"));
}

} // namespace
} // namespace zeltrona::animation
