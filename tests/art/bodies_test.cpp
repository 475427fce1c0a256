#include "tests/art/pictures.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace zeltrona::art {

namespace {

constexpr int kSide = 50;

/// A sprite as the board shows it: pose, facing in degrees (15 to 360), turned by quarter turns.
struct Sprite {
    QImage skin;
    QImage shirt;
    QImage mask;
};

Sprite spriteOf(int pose, int degrees) {
    static const QImage skins = committed("bodies_skin.png");
    static const QImage shirts = committed("bodies_shirt.png");
    static const QImage masks = committed("bodies_mask.png");
    const int turns = (degrees - 1) / 90;
    const int step = (degrees - 90 * turns) / 15 - 1;
    const auto cut = [&](const QImage& sheet, int image) {
        return quarterTurned(band(sheet, image * kSide, kSide, kSide), turns);
    };
    return {cut(skins, pose * 6 + step), cut(shirts, step), cut(masks, pose * 6 + step)};
}

/// Place in the player's own axes: x to the right of where it faces, y ahead, from the middle of the sprite.
QPointF inBodyAxes(QPoint pixel, int degrees) {
    const double angle = degrees * std::numbers::pi / 180.0;
    const double x = pixel.x() + 0.5 - kSide / 2.0;
    const double y = pixel.y() + 0.5 - kSide / 2.0;
    return {x * std::sin(angle) + y * std::cos(angle), x * std::cos(angle) - y * std::sin(angle)};
}

QPointF centroid(const QImage& shape, int degrees) {
    QPointF sum;
    const std::vector<QPoint> pixels = blackPixels(shape);
    for (const QPoint& pixel : pixels) {
        sum += inBodyAxes(pixel, degrees);
    }
    return sum / static_cast<double>(pixels.size());
}

bool touches(const QImage& one, const QImage& other) {
    const std::vector<QPoint> pixels = blackPixels(one);
    return std::any_of(pixels.begin(), pixels.end(), [&](QPoint at) {
        return black(other, at.x(), at.y()) || black(other, at.x() + 1, at.y())
               || black(other, at.x() - 1, at.y()) || black(other, at.x(), at.y() + 1)
               || black(other, at.x(), at.y() - 1);
    });
}

/// Pieces of the shape that do not touch each other, not even by a corner.
int countPieces(const QImage& shape) {
    QImage left = shape;
    int pieces = 0;
    for (const QPoint& start : blackPixels(shape)) {
        if (!black(left, start.x(), start.y())) {
            continue;
        }
        ++pieces;
        std::vector<QPoint> next{start};
        while (!next.empty()) {
            const QPoint at = next.back();
            next.pop_back();
            if (!black(left, at.x(), at.y())) {
                continue;
            }
            left.setPixel(at, 0xFFFFFFFFU);
            for (int i = 0; i < 9; ++i) {
                next.emplace_back(at.x() + i % 3 - 1, at.y() + i / 3 - 1);
            }
        }
    }
    return pieces;
}

/// The rectangles in which a press means the body: dx from, dx to, dy from, dy to, both ends included; by
/// quadrant 0, 90, 180, 270 and step 15 to 90.
constexpr int kBodyBoxes[24][4] = {{15, 29, 19, 34}, {15, 30, 19, 34}, {14, 30, 22, 36}, {15, 31, 21, 37},
                                   {15, 31, 20, 36}, {17, 32, 20, 35}, {18, 33, 21, 36}, {17, 32, 20, 35},
                                   {20, 34, 20, 35}, {18, 34, 20, 36}, {17, 33, 20, 36}, {18, 33, 18, 33},
                                   {20, 35, 18, 33}, {18, 33, 18, 33}, {18, 33, 18, 32}, {17, 33, 17, 33},
                                   {15, 31, 16, 32}, {17, 32, 15, 30}, {16, 32, 16, 31}, {16, 31, 17, 32},
                                   {16, 29, 18, 33}, {14, 30, 18, 34}, {13, 29, 18, 34}, {15, 35, 19, 34}};

bool inBodyBox(QPoint at, int degrees) {
    const int* box = kBodyBoxes[degrees / 15 - 1];
    return box[0] <= at.x() && at.x() <= box[1] && box[2] <= at.y() && at.y() <= box[3];
}

void expectInsideCell(const Sprite& sprite) {
    for (int i = 0; i < kSide; ++i) {
        EXPECT_FALSE(black(sprite.mask, i, 0) || black(sprite.mask, i, kSide - 1)) << i;
        EXPECT_FALSE(black(sprite.mask, 0, i) || black(sprite.mask, kSide - 1, i)) << i;
    }
}

void expectGapBetweenSkinAndShirt(const Sprite& sprite) {
    EXPECT_FALSE(touches(sprite.skin, sprite.shirt));
}

void expectDarkLineTowardsFloor(const Sprite& sprite) {
    for (const QImage* part : {&sprite.skin, &sprite.shirt}) {
        for (const QPoint& at : blackPixels(*part)) {
            for (const QPoint& step :
                 {QPoint(0, 0), QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
                EXPECT_TRUE(black(sprite.mask, at.x() + step.x(), at.y() + step.y()))
                    << at.x() << ' ' << at.y();
            }
        }
    }
}

void expectPieces(const Sprite& sprite) {
    EXPECT_EQ(countPieces(sprite.mask), 1);
    EXPECT_EQ(countPieces(sprite.shirt), 1);
    EXPECT_EQ(countPieces(sprite.skin), 3);
}

void expectTorsoInBodyBox(const Sprite& sprite, int degrees) {
    const std::vector<QPoint> shirt = blackPixels(sprite.shirt);
    QPointF sum;
    int inside = 0;
    for (const QPoint& at : shirt) {
        sum += QPointF(at);
        inside += inBodyBox(at, degrees) ? 1 : 0;
    }
    EXPECT_TRUE(inBodyBox((sum / static_cast<double>(shirt.size())).toPoint(), degrees));
    // The boxes shift unevenly from step to step; the one at 45 degrees lies farthest off.
    EXPECT_GE(inside * 100, static_cast<int>(shirt.size()) * 72);
}

void expectReachAhead(const Sprite& sprite, int degrees) {
    QPoint farthest;
    double reach = 0.0;
    for (const QPoint& at : blackPixels(sprite.skin)) {
        const double ahead = inBodyAxes(at, degrees).y();
        if (ahead > reach) {
            reach = ahead;
            farthest = at;
        }
    }
    EXPECT_GE(reach, 10.0);
    EXPECT_FALSE(inBodyBox(farthest, degrees));
}

void expectRoomForLabel(const Sprite& sprite) {
    // A digit of the label, 6 x 8 around the middle of the cell.
    int covered = 0;
    for (int y = 21; y < 29; ++y) {
        for (int x = 22; x < 28; ++x) {
            covered += black(sprite.shirt, x, y) ? 1 : 0;
        }
    }
    EXPECT_GE(covered, 46);
}

void expectSameSizeAs(const Sprite& upright, const Sprite& sprite, int degrees) {
    for (const auto& [turned, still] :
         {std::pair{sprite.mask, upright.mask}, std::pair{sprite.shirt, upright.shirt}}) {
        const double size = static_cast<double>(blackPixels(turned).size());
        const double usual = static_cast<double>(blackPixels(still).size());
        EXPECT_NEAR(size / usual, 1.0, 0.04);
        const QPointF moved = centroid(turned, degrees) - centroid(still, 90);
        EXPECT_LE(std::hypot(moved.x(), moved.y()), 0.35);
    }
}

/// One pose in all directions.
class Bodies : public ::testing::TestWithParam<int> {
protected:
    template<class Check> void atEachAngle(Check check) const {
        for (int degrees = 15; degrees <= 360; degrees += 15) {
            SCOPED_TRACE(degrees);
            check(spriteOf(GetParam(), degrees), degrees);
        }
    }
};

} // namespace

TEST_P(Bodies, StayInsideTheirCell) {
    atEachAngle([](const Sprite& sprite, int) { expectInsideCell(sprite); });
}

TEST_P(Bodies, KeepADarkLineBetweenSkinAndShirt) {
    atEachAngle([](const Sprite& sprite, int) { expectGapBetweenSkinAndShirt(sprite); });
}

TEST_P(Bodies, KeepADarkLineTowardsTheFloor) {
    atEachAngle([](const Sprite& sprite, int) { expectDarkLineTowardsFloor(sprite); });
}

TEST_P(Bodies, AreOnePieceWithHeadTwoArmsAndShirt) {
    atEachAngle([](const Sprite& sprite, int) { expectPieces(sprite); });
}

TEST_P(Bodies, HaveTheirTorsoWhereAPressMeansTheBody) {
    atEachAngle([](const Sprite& sprite, int degrees) { expectTorsoInBodyBox(sprite, degrees); });
}

TEST_P(Bodies, ReachOutOfTheBodyBoxOnTheSideTheyFace) {
    atEachAngle([](const Sprite& sprite, int degrees) { expectReachAhead(sprite, degrees); });
}

TEST_P(Bodies, CarryTheLabelOnTheShirt) {
    atEachAngle([](const Sprite& sprite, int) { expectRoomForLabel(sprite); });
}

TEST_P(Bodies, KeepSizeAndCentreWhenTheyTurn) {
    const Sprite upright = spriteOf(GetParam(), 90);
    atEachAngle([&](const Sprite& sprite, int degrees) { expectSameSizeAs(upright, sprite, degrees); });
}

TEST_P(Bodies, DifferFromTheOtherPosesAtAGlance) {
    for (int other = 0; other < 4; ++other) {
        if (other != GetParam()) {
            EXPECT_GE(countDifferences(spriteOf(GetParam(), 90).mask, spriteOf(other, 90).mask), 120)
                << other;
        }
    }
}

TEST_P(Bodies, HaveAColouredPictureForThePanel) {
    const QImage example = committed(QStringLiteral("body_pose_%1.png").arg(GetParam()));
    const Sprite sprite = spriteOf(GetParam(), 90);
    EXPECT_EQ(qAlpha(example.pixel(0, 0)), 0);
    for (const QPoint& at : blackPixels(sprite.skin)) {
        EXPECT_EQ(example.pixel(at), qRgb(255, 204, 153));
    }
    for (const QPoint& at : blackPixels(sprite.shirt)) {
        EXPECT_GT(qBlue(example.pixel(at)), 100);
    }
}

INSTANTIATE_TEST_SUITE_P(OfEachPose, Bodies, ::testing::Values(0, 1, 2, 3));

} // namespace zeltrona::art
