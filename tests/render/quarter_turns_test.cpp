#include "render/quarter_turns.h"

#include <QPainter>

#include <array>
#include <gtest/gtest.h>

namespace zeltrona::render {
namespace {

/// Black, with a red pixel at the right end of the top row and a green one next to it.
QImage marked(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::black);
    image.setPixel(width - 1, 0, qRgb(255, 0, 0));
    image.setPixel(width - 2, 0, qRgb(0, 255, 0));
    return image;
}

TEST(QuarterTurns, GoCounterClockwiseAsSeen) {
    const QImage turned = turnedByQuarters(marked(50, 50), 1);
    EXPECT_EQ(turned.pixel(0, 0), qRgb(255, 0, 0)) << "the right upper corner goes to the left upper one";
    EXPECT_EQ(turned.pixel(0, 1), qRgb(0, 255, 0));
    EXPECT_EQ(turnedByQuarters(marked(50, 50), 2).pixel(0, 49), qRgb(255, 0, 0));
    EXPECT_EQ(turnedByQuarters(marked(50, 50), 3).pixel(49, 49), qRgb(255, 0, 0));
}

TEST(QuarterTurns, FourMakeTheWholeAndNegativeOnesGoBack) {
    const QImage picture = marked(50, 50);
    EXPECT_EQ(turnedByQuarters(picture, 4), picture);
    EXPECT_EQ(turnedByQuarters(picture, -1), turnedByQuarters(picture, 3));
    EXPECT_EQ(turnedByQuarters(turnedByQuarters(picture, 1), 3), picture);
}

TEST(QuarterTurns, LoseNoPixel) {
    QImage picture(7, 4, QImage::Format_RGB32);
    for (int i = 0; i < 28; ++i) {
        picture.setPixel(i % 7, i / 7, qRgb(i, 0, 0));
    }
    const QImage turned = turnedByQuarters(picture, 1);
    EXPECT_EQ(turned.size(), QSize(4, 7));
    EXPECT_EQ(turnedByQuarters(turned, 3), picture);
}

TEST(QuarterTurns, RememberedOnesAreThoseOfTheirPicture) {
    QuarterTurns turns;
    std::array<QImage, 300> pictures;
    for (int i = 0; i < 300; ++i) {
        pictures[static_cast<std::size_t>(i)] = marked(50, 50);
        pictures[static_cast<std::size_t>(i)].setPixel(20, 20, qRgb(i / 256, i % 256, 77));
    }
    for (int round = 0; round < 2; ++round) {
        for (const QImage& picture : pictures) {
            for (int quarters = -3; quarters <= 4; ++quarters) {
                ASSERT_EQ(turns.of(picture, quarters), turnedByQuarters(picture, quarters));
            }
        }
    }
}

TEST(QuarterTurns, PictureThatChangedIsTurnedAnew) {
    QuarterTurns turns;
    QImage picture = marked(50, 50);
    const QRgb before = turns.of(picture, 1).pixel(0, 0);
    picture.setPixel(49, 0, qRgb(0, 0, 255));
    EXPECT_NE(turns.of(picture, 1).pixel(0, 0), before);
}

TEST(QuarterTurns, OfNoPictureIsNone) {
    QuarterTurns turns;
    EXPECT_TRUE(turns.of({}, 1).isNull());
}

} // namespace
} // namespace zeltrona::render
