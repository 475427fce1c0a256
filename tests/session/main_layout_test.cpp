#include "session/main_layout.h"

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

TEST(MainLayout, HalfCourtsHaveTheNarrowWindow) {
    for (const std::int16_t court : {std::int16_t{1}, std::int16_t{2}, std::int16_t{4}, std::int16_t{5},
                                     std::int16_t{7}, std::int16_t{8}}) {
        const CourtLayout layout = courtLayoutOf(court);
        EXPECT_EQ(layout.window, QSize(433, 542)) << court;
        EXPECT_EQ(layout.pic.y(), 15);
        EXPECT_EQ(layout.Frame1, QPoint(21, 362));
        EXPECT_EQ(layout.pToolAnim, QPoint(54, 411));
    }
}

TEST(MainLayout, WholeCourtsHaveTheWideWindow) {
    for (const std::int16_t court : {std::int16_t{3}, std::int16_t{6}, std::int16_t{9}}) {
        const CourtLayout layout = courtLayoutOf(court);
        EXPECT_EQ(layout.window, QSize(606, 542)) << court;
        EXPECT_EQ(layout.pic.y(), 15);
        EXPECT_EQ(layout.Frame1, QPoint(61, 324));
        EXPECT_EQ(layout.pToolAnim, QPoint(94, 371));
    }
}

TEST(MainLayout, OtherCourtsKeepTheSizeThatTheWindowIsMadeWith) {
    for (const std::int16_t court : {std::int16_t{0}, std::int16_t{10}, std::int16_t{-3}}) {
        EXPECT_EQ(courtLayoutOf(court), courtLayoutOf(1)) << court;
    }
}

} // namespace
} // namespace zeltrona::session
