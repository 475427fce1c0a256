#include "render/bezier_path.h"
#include "tests/render/line_fixtures.h"

#include <cmath>
#include <random>

namespace zeltrona::render {
namespace {

using document::PointF;
using Bezier = std::vector<PointI>;

std::vector<PointF> flattened(const Bezier& bezier, const ClipBox& box = {}) {
    std::vector<PointF> points;
    flattenBezierPath(bezier, points, box);
    return points;
}

double gap(PointF a, PointF b) {
    return std::hypot(static_cast<double>(b.x) - a.x, static_cast<double>(b.y) - a.y);
}

TEST(BezierPoint, IsTheStandardCubic) {
    PointF p;
    bezierPoint({0, 0}, {0, 80}, {80, 80}, {80, 0}, p, 0);
    EXPECT_EQ(p, (PointF{0, 0}));
    bezierPoint({0, 0}, {0, 80}, {80, 80}, {80, 0}, p, 0.5);
    EXPECT_EQ(p, (PointF{40, 60}));
    bezierPoint({0, 0}, {0, 80}, {80, 80}, {80, 0}, p, 0.25);
    EXPECT_EQ(p, (PointF{12.5F, 45}));
    bezierPoint({0, 0}, {0, 80}, {80, 80}, {80, 0}, p, 1);
    EXPECT_EQ(p, (PointF{80, 0}));
}

TEST(BezierPoint, GoesOnPastTheEnd) {
    PointF p;
    bezierPoint({0, 0}, {10, 0}, {20, 0}, {30, 0}, p, 1.1);
    EXPECT_FLOAT_EQ(p.x, 33);
}

// At 90 pixels to a unit of t: 9 a step of 0.1 is too far, so steps of 0.01 lead to 4.5, and steps of 0.001
// from there to 4.86, the first within 4.8. So every sample is 4.86 on; the 18th, at 87.48, is near the end
// and 90 closes.
TEST(FlattenBezierPath, RefinesItsStepByTens) {
    const std::vector<PointF> points = flattened({{0, 0}, {30, 0}, {60, 0}, {90, 0}});
    ASSERT_EQ(points.size(), 20U);
    for (int i = 0; i <= 18; ++i) {
        expectNear(points[static_cast<std::size_t>(i)], {4.86F * static_cast<float>(i), 0});
    }
    EXPECT_EQ(points.back(), (PointF{90, 0}));
}

TEST(FlattenBezierPath, LeavesTheSamplePastTheEndOfAShortCubic) {
    const std::vector<PointF> points = flattened({{0, 0}, {1, 0}, {2, 0}, {3, 0}});
    ASSERT_EQ(points.size(), 2U);
    expectNear(points[1], {3.3F, 0}); // t = 1.1; the next, 1.2, is past the limit
}

TEST(FlattenBezierPath, ClosesAtTheFirstSampleThatIsNearTheEnd) {
    const std::vector<PointF> points = flattened({{0, 0}, {50, 0}, {50, 0}, {1, 1}});
    ASSERT_EQ(points.size(), 3U);
    EXPECT_GE(gap(points[0], points[1]), 4.8);
    EXPECT_EQ(points[2], (PointF{1, 1}));
}

TEST(FlattenBezierPath, GoesOnFromTheEndOfTheCubicBefore) {
    const std::vector<PointF> points =
        flattened({{0, 0}, {30, 0}, {60, 0}, {90, 0}, {90, 30}, {90, 60}, {90, 90}});
    ASSERT_EQ(points.size(), 39U);
    EXPECT_EQ(points[19], (PointF{90, 0}));
    expectNear(points[20], {90, 4.86F});
    EXPECT_EQ(points.back(), (PointF{90, 90}));
}

TEST(FlattenBezierPath, OfOneRepeatedPointAddsOnePointACubic) {
    EXPECT_EQ(flattened(Bezier(4, {7, 9})), (std::vector<PointF>{{7, 9}, {7, 9}}));
    EXPECT_EQ(flattened(Bezier(7, {7, 9})).size(), 3U);
}

TEST(FlattenBezierPath, OfAnArrayWithoutACubicIsItsStart) {
    EXPECT_EQ(flattened({{7, 9}}), (std::vector<PointF>{{7, 9}}));
    EXPECT_EQ(flattened({{7, 9}, {8, 9}, {9, 9}}), (std::vector<PointF>{{7, 9}}));
    EXPECT_TRUE(flattened({}).empty());
}

Bezier randomCurve(std::mt19937& random) {
    std::uniform_int_distribution<int> x(0, 532);
    std::uniform_int_distribution<int> y(0, 295);
    Bezier bezier;
    for (int i = 0; i < 4; ++i) {
        bezier.push_back({x(random), y(random)});
    }
    return bezier;
}

TEST(FlattenBezierPath, KeepsItsPitchOnTenThousandRandomCurves) {
    constexpr std::uint32_t kSeed = 20080917;
    std::mt19937 random(kSeed);
    for (int n = 0; n < 10000; ++n) {
        const Bezier bezier = randomCurve(random);
        const std::vector<PointF> points = flattened(bezier);
        ASSERT_GE(points.size(), 2U);
        for (std::size_t i = 1; i + 1 < points.size(); ++i) {
            const double pitch = gap(points[i - 1], points[i]);
            ASSERT_TRUE(pitch >= 4.8 && pitch < 5.2) << "seed " << kSeed << " curve " << n << " step " << i;
        }
        ASSERT_LT(gap(points[points.size() - 2], points.back()), 5.2) << "seed " << kSeed << " curve " << n;
    }
}

TEST(FlattenBezierPath, IsTheSameUpToTheLastSampleThatShows) {
    std::mt19937 random(5);
    const ClipBox box{100, 80, 260, 200};
    for (int n = 0; n < 500; ++n) {
        Bezier bezier = randomCurve(random);
        const Bezier second = randomCurve(random);
        bezier.insert(bezier.end(), second.begin() + 1, second.end());
        const std::vector<PointF> all = flattened(bezier);
        const std::vector<PointF> seen = flattened(bezier, box);
        ASSERT_LE(seen.size(), all.size());
        ASSERT_TRUE(std::equal(seen.begin(), seen.end(), all.begin())) << "curve " << n;
        for (std::size_t i = seen.size(); i < all.size(); ++i) {
            ASSERT_FALSE(isInside(box, all[i])) << "curve " << n << " sample " << i;
        }
    }
}

TEST(FlattenBezierPath, StopsAtThirtyTwoThousandPoints) {
    const std::vector<PointF> points = flattened({{0, 0}, {1000000, 0}, {0, 1000000}, {1000000, 1000000}});
    EXPECT_EQ(points.size(), 32002U);
    EXPECT_EQ(flattened({{0, 0},
                         {100000, 0},
                         {100000, 0},
                         {200000, 0},
                         {200000, 100000},
                         {200000, 100000},
                         {200000, 200000}})
                  .size(),
              32002U);
}

TEST(FlattenBezierPath, EndsWhereSinglesLieFurtherApartThanAStep) {
    const std::vector<PointF> points =
        flattened({{0, 0}, {2000000000, -2000000000}, {-2000000000, 2000000000}, {1000000000, 999999999}});
    EXPECT_LE(points.size(), 32003U);
    const std::vector<PointF> far = flattened({{2000000000, 2000000000},
                                               {2000000300, 2000000300},
                                               {2000000900, 2000000100},
                                               {2000001000, 2000001000}});
    EXPECT_LE(far.size(), 3U);
}

TEST(FlattenBezierPath, DoesNotWalkWhatLeavesTheBoxForGood) {
    const Bezier leaving{{100, 100}, {400, 100}, {1000000000, 100}, {1000000000, 1000000000}};
    EXPECT_LT(flattened(leaving, kBoard).size(), 120U);
    const Bezier beside{{-100, -100}, {-400, -90}, {1000000000, -100}, {1000000000, -1000000000}};
    EXPECT_EQ(flattened(beside, kBoard).size(), 1U);
}

TEST(FlattenBezierPath, DoesNotWalkFromAStartThatThirtyTwoThousandStepsCannotLeave) {
    EXPECT_EQ(flattened({{500000, 0}, {100, 0}, {100, 0}, {100, 100}}, kBoard).size(), 1U);
}

// A slope without x, falling, rising and level, at a distance of 3: to the left, left and up, right and up,
// up.
TEST(OffsetBezierPath, ShiftsByTheOctantOfTheSlope) {
    struct Row {
        PointI control;
        PointI shift;
    };
    for (const Row& row : {Row{{100, 140}, {-3, 0}}, Row{{100, 60}, {-3, 0}}, Row{{140, 60}, {-3, -3}},
                           Row{{60, 140}, {-3, -3}}, Row{{140, 140}, {3, -3}}, Row{{60, 60}, {3, -3}},
                           Row{{140, 100}, {0, -3}}, Row{{60, 100}, {0, -3}}, Row{{100, 100}, {-3, 0}}}) {
        const Bezier bezier{{100, 100}, row.control, {200, 200}, {240, 200}};
        Bezier shifted;
        offsetBezierPath(bezier, shifted, 2);
        const PointI by = row.shift;
        EXPECT_EQ(shifted, (Bezier{{100 + by.x, 100 + by.y},
                                   {row.control.x + by.x, row.control.y + by.y},
                                   {200 + by.x, 200 + by.y},
                                   {240, 197}}));
    }
}

TEST(OffsetBezierPath, LeavesTheStartOfALaterCubicToTheOneBefore) {
    const Bezier bezier{{0, 0}, {0, 50}, {0, 50}, {50, 50}, {90, 90}, {90, 90}, {90, 10}};
    Bezier shifted;
    offsetBezierPath(bezier, shifted, 1);
    EXPECT_EQ(shifted, (Bezier{{-2, 0}, {-2, 50}, {-2, 50}, {50, 48}, {92, 88}, {92, 88}, {88, 10}}));
}

TEST(OffsetBezierPath, WrapsItsDifferencesAtSixteenBits) {
    Bezier shifted;
    offsetBezierPath(Bezier{{0, 0}, {65536, 10}, {0, 0}, {40000, 10}}, shifted, 2);
    EXPECT_EQ(shifted, (Bezier{{-3, 0}, {65533, 10}, {-3, 0}, {39997, 7}}));
}

TEST(OffsetBezierPath, WrapsAtTheEdgeOfThirtyTwoBits) {
    Bezier shifted;
    offsetBezierPath(Bezier(4, {std::numeric_limits<std::int32_t>::min(), 0}), shifted, 2);
    EXPECT_EQ(shifted[0].x, std::numeric_limits<std::int32_t>::max() - 2);
}

} // namespace
} // namespace zeltrona::render
