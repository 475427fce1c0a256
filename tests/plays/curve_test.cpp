#include "tools/plays/curve.h"

#include <cmath>
#include <gtest/gtest.h>

namespace zeltrona::plays {
namespace {

using document::PointF;

double gap(PointF a, PointF b) {
    return std::hypot(b.x - a.x, b.y - a.y);
}

TEST(CurvePoints, PutsOneControlBetweenItsEnds) {
    EXPECT_EQ(curvePoints({0, 0}, {{50, 0}}, {50, 50}), (std::vector<PointF>{{0, 0}, {50, 0}, {50, 50}}));
}

TEST(CurvePoints, JoinsTwoControlsInTheirMiddle) {
    EXPECT_EQ(curvePoints({0, 0}, {{50, 0}, {50, 80}}, {90, 90}),
              (std::vector<PointF>{{0, 0}, {50, 0}, {50, 40}, {50, 80}, {90, 90}}));
}

TEST(NaturalRun, StartsAndEndsSlowlyAndIsFastBetween) {
    const std::vector<PointF> run = naturalRun({{0, 0}, {100, 0}, {200, 0}});
    EXPECT_EQ(run.front(), (PointF{0, 0}));
    EXPECT_EQ(run.back(), (PointF{200, 0}));
    EXPECT_LT(gap(run[0], run[1]), 2);
    EXPECT_NEAR(gap(run[run.size() / 2], run[run.size() / 2 + 1]), 3, 0.5);
    EXPECT_LT(gap(run[run.size() - 2], run.back()), 2.5);
    for (std::size_t i = 1; i < run.size(); ++i) {
        EXPECT_LE(gap(run[i - 1], run[i]), 3.6) << i;
        EXPECT_GT(gap(run[i - 1], run[i]), 0) << i;
    }
}

TEST(NaturalRun, LiesOnQuartersOfAUnit) {
    for (const PointF p : naturalRun({{0, 0}, {70, 13}, {111, 95}})) {
        EXPECT_EQ(p, quartered(p));
    }
}

TEST(NaturalRun, FollowsTheCurve) {
    const std::vector<PointF> run = naturalRun({{0, 0}, {100, 0}, {100, 100}});
    // Half way along a cubic whose controls coincide lies at an eighth, three quarters and an eighth.
    const PointF middle{87.5F, 12.5F};
    double nearest = 1e9;
    for (const PointF p : run) {
        nearest = std::min(nearest, gap(p, middle));
    }
    EXPECT_LT(nearest, 2);
}

} // namespace
} // namespace zeltrona::plays
