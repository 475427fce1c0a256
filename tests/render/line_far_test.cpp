#include "tests/render/line_fixtures.h"

#include <random>

namespace zeltrona::render {
namespace {

using document::PointF;

constexpr float kFar = 1e9F;

Painting oneLine(int style, Shape shape, std::vector<PointF> pts, const ClipBox& box = kBoard) {
    return {.lines = {lineOf(style, shape, std::move(pts))}, .box = box};
}

TEST(FarLine, CostsNoMoreThanWhatShows) {
    for (const int style : {1, 2}) {
        for (const PointF end : {PointF{kFar, 100}, PointF{100, kFar}, PointF{kFar, kFar},
                                 PointF{-kFar, kFar}, PointF{3e38F, -3e38F}, PointF{100, -3e38F}}) {
            EXPECT_LT(painted(oneLine(style, Shape::Straight, {{100, 100}, end})).primitives.size(), 120U);
            EXPECT_LT(painted(oneLine(style, Shape::Straight, {end, {100, 100}})).primitives.size(), 120U);
            EXPECT_LT(painted(oneLine(style, Shape::Straight, {{-end.x, -end.y}, end})).primitives.size(),
                      200U);
        }
    }
}

TEST(FarLine, OfManyPointsCostsNoMoreThanWhatShows) {
    std::vector<PointF> pts;
    for (int i = 0; i < 3000; ++i) {
        pts.push_back(i % 2 == 0 ? PointF{-kFar, -50} : PointF{kFar, -60.0F - static_cast<float>(i)});
    }
    EXPECT_EQ(kindsOf(painted(oneLine(1, Shape::Straight, pts))), "p");
    EXPECT_EQ(kindsOf(painted(oneLine(2, Shape::Straight, pts))), "p");
}

TEST(FarLine, ThatIsNoNumberIsPassedOver) {
    const float infinity = std::numeric_limits<float>::infinity();
    for (int style = 0; style <= 4; ++style) {
        for (const Shape shape : {Shape::Straight, Shape::Curved}) {
            EXPECT_LT(
                painted(oneLine(style, shape, {{10, 10}, {infinity, 10}, {10, infinity}})).primitives.size(),
                10000U);
        }
    }
}

TEST(FarCurve, EndsWithoutWalkingForever) {
    for (int style = 0; style <= 4; ++style) {
        for (const std::vector<PointF>& pts : {std::vector<PointF>{{10, 10}, {kFar, 10}, {kFar, kFar}},
                                               {{kFar, kFar}, {100, 100}, {10, 10}},
                                               {{-kFar, 100}, {0, 100}, {kFar, 100}},
                                               {{100, 100}, {kFar, -kFar}, {100, 200}},
                                               {{2e9F, 2e9F}, {-2e9F, 2e9F}, {2e9F, -2e9F}}}) {
            EXPECT_LT(painted(oneLine(style, Shape::Curved, pts)).primitives.size(), 400U);
        }
    }
}

/// Whether anything of a dash or half wave may fall into the box.
bool shows(const LinePrimitive& primitive, const ClipBox& box) {
    if (const auto* s = std::get_if<SegmentPrimitive>(&primitive)) {
        return touches(grown(box, 1), s->from, s->to);
    }
    if (const auto* a = std::get_if<ArcPrimitive>(&primitive)) {
        return isInside(grown(box, 4), a->centre);
    }
    return true;
}

std::vector<LinePrimitive> thatShow(const LineDrawing& drawing, const ClipBox& box) {
    std::vector<LinePrimitive> found;
    std::copy_if(drawing.primitives.begin(), drawing.primitives.end(), std::back_inserter(found),
                 [&box](const LinePrimitive& p) { return shows(p, box); });
    return found;
}

class ClippedLine : public testing::TestWithParam<Shape> {};

TEST_P(ClippedLine, HasTheSameDashesAndWavesInsideTheBox) {
    constexpr std::uint32_t kSeed = 77;
    std::mt19937 random(kSeed);
    std::uniform_real_distribution<float> coordinate(-3000, 3000);
    for (int n = 0; n < 300; ++n) {
        const int style = 1 + n % 2;
        std::vector<PointF> pts;
        for (int i = 0; i < 5; ++i) {
            pts.push_back({coordinate(random), coordinate(random)});
        }
        const LineDrawing whole = painted(oneLine(style, GetParam(), pts, {}));
        const LineDrawing clipped = painted(oneLine(style, GetParam(), pts));
        ASSERT_EQ(thatShow(clipped, kBoard), thatShow(whole, kBoard)) << "seed " << kSeed << " line " << n;
    }
}

INSTANTIATE_TEST_SUITE_P(Shapes, ClippedLine, testing::Values(Shape::Straight, Shape::Curved));

} // namespace
} // namespace zeltrona::render
