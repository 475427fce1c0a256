#include "platform/color_value.h"

#include <gtest/gtest.h>

namespace zeltrona::platform {
namespace {

TEST(ColorValue, RedStandsInTheLowestByte) {
    EXPECT_EQ(colorOfValue(255), QColor(255, 0, 0));
    EXPECT_EQ(colorOfValue(0xFF0000), QColor(0, 0, 255));
    EXPECT_EQ(valueOfColor(QColor(255, 204, 153)), 10079487);
}

TEST(ColorValue, GoesThereAndBack) {
    for (const std::int32_t value : {0, 1, 0xFFFFFF, 0x123456, 0x808080}) {
        EXPECT_EQ(valueOfColor(colorOfValue(value)), value);
    }
}

TEST(ColorValue, BitsBeyond24DoNotCount) {
    EXPECT_EQ(colorOfValue(0x7F0000FF), QColor(255, 0, 0));
    EXPECT_EQ(colorOfValue(-1), QColor(255, 255, 255));
}

} // namespace
} // namespace zeltrona::platform
