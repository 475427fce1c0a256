#include "tools/zpf/number_ranges.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::zpf {
namespace {

using testing::ElementsAre;
using testing::Optional;

TEST(NumberRanges, TakeNumbersAndRanges) {
    EXPECT_THAT(parseRanges("2", 9), Optional(ElementsAre(NumberRange{2, 2})));
    EXPECT_THAT(parseRanges("2-5", 9), Optional(ElementsAre(NumberRange{2, 5})));
    EXPECT_THAT(parseRanges("7,1-2", 9), Optional(ElementsAre(NumberRange{7, 7}, NumberRange{1, 2})));
}

TEST(NumberRanges, OpenEndIsTheFirstOrTheLast) {
    EXPECT_THAT(parseRanges("-3", 9), Optional(ElementsAre(NumberRange{1, 3})));
    EXPECT_THAT(parseRanges("3-", 9), Optional(ElementsAre(NumberRange{3, 9})));
    EXPECT_THAT(parseRanges("12-", 9), Optional(ElementsAre(NumberRange{12, 12}))) << "beyond the last";
}

TEST(NumberRanges, RefuseEverythingElse) {
    for (const char* text :
         {"", "-", ",", "1,", "0", "0-2", "5-2", "a", "1-a", "a-1", "1-2-3", "--1", "1 -2"}) {
        EXPECT_EQ(parseRanges(text, 9), std::nullopt) << text;
    }
}

TEST(NumberRanges, HoldTheirNumbers) {
    const std::vector<NumberRange> ranges{{1, 2}, {5, 5}};
    EXPECT_TRUE(contains(ranges, 2));
    EXPECT_TRUE(contains(ranges, 5));
    EXPECT_FALSE(contains(ranges, 3));
}

} // namespace
} // namespace zeltrona::zpf
