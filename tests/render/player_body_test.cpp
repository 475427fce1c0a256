#include "render/body_sprite.h"
#include "render/player_body.h"
#include "tests/render/board_fixture.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace zeltrona::render {
namespace {

constexpr Color kSkin = 0x90B0E0;
constexpr Color kTeam = 0x2060C0;
constexpr Color kLabel = 0x00FFFF;
constexpr Color kFloor = 0x40A040;

QImage shape(const QRect& rect) {
    QImage image(50, 50, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter(&image).fillRect(rect, Qt::black);
    return image;
}

struct Shapes {
    QImage skin = shape({30, 5, 10, 4});
    QImage shirt = shape({10, 20, 20, 10});
    QImage mask = shape({8, 3, 34, 40});
    BodyShapes lent() const { return {skin, shirt, mask}; }
};

std::int16_t drawAt(BoardSurface& pic, const Shapes& shapes, int angle, const char* text = "") {
    WorkingSurfaces work;
    return drawBodyC(pic, work, shapes.lent(), kSkin, kTeam, angle, 100, 60, QString::fromLatin1(text),
                     kLabel);
}

TEST(DrawBodyC, PaintsSkinAndShirtInTheirColoursAndTheRestOfTheMaskBlack) {
    BoardSurface pic;
    pic.setBackColor(kFloor);
    EXPECT_NE(drawAt(pic, {}, 0), 0);
    EXPECT_EQ(boundsOf(pic, kSkin), QRect(130, 65, 10, 4));
    EXPECT_EQ(boundsOf(pic, kTeam), QRect(110, 80, 20, 10));
    EXPECT_EQ(countOf(pic, kSkin), 40);
    EXPECT_EQ(countOf(pic, kTeam), 200);
    EXPECT_EQ(countOf(pic, kBlack), 34 * 40 - 240);
    EXPECT_EQ(boundsOfOther(pic, kFloor), QRect(108, 63, 34, 40));
}

/// What the sprite is defined by: whole-surface copies, one after the other.
BoardSurface stepByStep(const Shapes& shapes, int quarters, Color floor) {
    const auto copy = [](BoardSurface& dest, const QImage& source, RasterOp op) {
        dest.bitBlt(0, 0, 50, 50, source, 0, 0, op);
    };
    BoardSurface sprite(50, 50);
    BoardSurface color(50, 50);
    sprite.setBackColor(kBlack);
    const auto add = [&](const QImage& shape, Color filled) {
        BoardSurface inverted(50, 50);
        copy(inverted, shape, RasterOp::SrcCopy);
        copy(inverted, {}, RasterOp::DstInvert);
        color.setBackColor(filled);
        copy(color, inverted.image(), RasterOp::SrcAnd);
        copy(sprite, shape, RasterOp::SrcAnd);
        copy(sprite, color.image(), RasterOp::SrcPaint);
    };
    add(turnedByQuarters(shapes.skin, quarters), kSkin);
    add(turnedByQuarters(shapes.shirt, quarters), kTeam);
    BoardSurface pic;
    pic.setBackColor(floor);
    pic.bitBlt(100, 60, 50, 50, turnedByQuarters(shapes.mask, quarters), 0, 0, RasterOp::SrcAnd);
    pic.bitBlt(100, 60, 50, 50, sprite.image(), 0, 0, RasterOp::SrcPaint);
    return pic;
}

/// Noise of every colour, so that each bit meets each other one.
QImage noise(std::uint32_t seed) {
    QImage image(50, 50, QImage::Format_RGB32);
    for (int i = 0; i < 2500; ++i) {
        seed = seed * 1664525U + 1013904223U;
        image.setPixel(i % 50, i / 50, kOpaque | seed >> 8U);
    }
    return image;
}

TEST(DrawBodyC, EqualsItsCopiesDoneOneAfterTheOther) {
    for (int quarters = 0; quarters < 4; ++quarters) {
        for (const bool noisy : {false, true}) {
            Shapes shapes;
            if (noisy) {
                shapes = {noise(1), noise(2), noise(3)};
            }
            BoardSurface pic;
            pic.setBackColor(0x5A3C96);
            drawAt(pic, shapes, -90 * quarters);
            EXPECT_EQ(pic.image(), stepByStep(shapes, quarters, 0x5A3C96).image());
        }
    }
}

TEST(DrawBodyC, ShirtLiesOverSkin) {
    BoardSurface pic;
    Shapes shapes;
    shapes.skin = shape({10, 20, 20, 20});
    drawAt(pic, shapes, 0);
    EXPECT_EQ(countOf(pic, kTeam), 200);
    EXPECT_EQ(countOf(pic, kSkin), 200);
}

TEST(DrawBodyC, PartOutsideTheMaskIsOredWithTheFloor) {
    BoardSurface pic;
    pic.setBackColor(kFloor);
    Shapes shapes;
    shapes.mask = shape({});
    drawAt(pic, shapes, 0);
    EXPECT_EQ(pic.point(135, 66), kFloor | kSkin);
    EXPECT_EQ(countOf(pic, kBlack), 0);
}

TEST(DrawBodyC, NegativeAngleTurnsCounterClockwiseAsSeen) {
    BoardSurface pic;
    drawAt(pic, {}, -90);
    EXPECT_EQ(boundsOf(pic, kSkin), QRect(105, 70, 4, 10)) << "upper right goes to upper left";
    BoardSurface half;
    drawAt(half, {}, -180);
    EXPECT_EQ(boundsOf(half, kSkin), QRect(110, 101, 10, 4));
    BoardSurface back;
    drawAt(back, {}, -270);
    EXPECT_EQ(boundsOf(back, kSkin), QRect(141, 90, 4, 10));
}

TEST(DrawBodyC, TurnChangesNoCountOfPixels) {
    for (const int angle : {0, -90, -180, -270}) {
        BoardSurface pic;
        drawAt(pic, {}, angle);
        EXPECT_EQ(countOf(pic, kSkin), 40);
        EXPECT_EQ(countOf(pic, kTeam), 200);
        EXPECT_EQ(countOf(pic, kBlack), 34 * 40 - 240);
    }
}

TEST(DrawBodyC, LabelStandsUprightCentredOnTheCellAtEveryAngle) {
    for (const int angle : {0, -90, -180, -270}) {
        BoardSurface pic;
        drawAt(pic, {}, angle, "10");
        const QRect ink = boundsOf(pic, kLabel);
        EXPECT_NEAR(ink.center().x(), 124.5, 1.5);
        EXPECT_NEAR(ink.center().y(), 84.5, 1.5);
        EXPECT_GT(ink.width(), ink.height()) << "two digits side by side";
    }
}

TEST(DrawBodyC, BlackLabelShowsToo) {
    BoardSurface pic;
    WorkingSurfaces work;
    Shapes shapes;
    drawBodyC(pic, work, shapes.lent(), kSkin, kTeam, 0, 100, 60, QStringLiteral("8"), kBlack);
    EXPECT_LT(countOf(pic, kTeam), 200);
}

TEST(DrawBodyC, LeavesTheDrawingStateOfTheBoard) {
    BoardSurface pic;
    const DrawingState before = pic.state;
    drawAt(pic, {}, -90, "10");
    EXPECT_EQ(pic.state, before);
}

TEST(DrawBodyC, MissingShapeFailsAndPaintsNothing) {
    for (int missing = 0; missing < 3; ++missing) {
        BoardSurface pic;
        Shapes shapes;
        (missing == 0 ? shapes.skin : missing == 1 ? shapes.shirt : shapes.mask) = {};
        EXPECT_EQ(drawAt(pic, shapes, 0, "10"), 0);
        EXPECT_EQ(countOf(pic, kWhite), 363 * 332);
    }
}

TEST(PaintBody, TakesTheImagesThatAngleAndPoseChoose) {
    for (int body = 0; body <= 3; ++body) {
        for (int angle = 0; angle <= 360; angle += 5) {
            TestBoard test;
            BodyLook look;
            look.x = 100;
            look.y = 60;
            look.angle = static_cast<std::int16_t>(angle);
            look.body = static_cast<std::int16_t>(body);
            look.skin = kSkin;
            look.teamColor = kTeam;
            paintBody(test.board, look);
            const BodySprite sprite = bodySpriteOf(look.angle, look.body);
            // In the test art image n is n - 1 pixels wider than the first one.
            ASSERT_EQ(countOf(test.pic, kSkin), (4 + sprite.skinAndMask) * 8) << angle;
            ASSERT_EQ(countOf(test.pic, kTeam), (4 + sprite.shirt) * 10) << angle;
            const QRect skin = boundsOf(test.pic, kSkin);
            const bool upright = sprite.baseAngle % 180 == 0;
            ASSERT_EQ(upright ? skin.height() : skin.width(), 8) << angle;
        }
    }
}

TEST(PaintBody, TurnsByTheBaseAngleCounterClockwise) {
    TestBoard test;
    BodyLook look{100, 60, 105, 0, kSkin, kTeam, "", kLabel, 238};
    paintBody(test.board, look);
    EXPECT_EQ(boundsOf(test.pic, kSkin), QRect(105, 60 + 49 - 14, 8, 5))
        << "columns 10 to 14 become rows from below";
}

TEST(PaintBody, PlaceIsRoundedHalfToEvenAndHasSixteenBits) {
    TestBoard test;
    paintBody(test.board, {100.5F, 61.5F, 15, 0, kSkin, kTeam, "", kLabel, 238});
    EXPECT_EQ(boundsOf(test.pic, kSkin).topLeft(), QPoint(110, 67));
    TestBoard wrapped;
    paintBody(wrapped.board, {65536.0F + 100, 60 - 65536.0F, 15, 0, kSkin, kTeam, "", kLabel, 238});
    EXPECT_EQ(boundsOf(wrapped.pic, kSkin).topLeft(), QPoint(110, 65));
}

TEST(PaintBody, PoseBeyondThreeDrawsAsPoseZero) {
    TestBoard nine;
    TestBoard zero;
    paintBody(nine.board, {100, 60, 100, 9, kSkin, kTeam, "4", kLabel, 238});
    paintBody(zero.board, {100, 60, 100, 0, kSkin, kTeam, "4", kLabel, 238});
    EXPECT_EQ(nine.pic.image(), zero.pic.image());
}

TEST(PaintBody, FailureIsToldOnceForEachPlayerAndPaintsNothing) {
    TestBoard test;
    test.art.ilptshirt.fill({});
    for (int i = 0; i < 3; ++i) {
        paintBody(test.board, {100, 60, 15, 0, kSkin, kTeam, "4", kLabel, 238});
    }
    EXPECT_EQ(test.errors, std::vector<std::string>(3, "Low level Drawing error."));
    EXPECT_EQ(countOf(test.pic, kWhite), 363 * 332);
}

TEST(PaintBody, PartOffTheBoardDoesNotAppear) {
    TestBoard test;
    paintBody(test.board, {-20, -10, 90, 3, kSkin, kTeam, "4", kLabel, 238});
    paintBody(test.board, {350, 320, 90, 3, kSkin, kTeam, "4", kLabel, 238});
    EXPECT_NE(countOf(test.pic, kWhite), 363 * 332);
}

TEST(DrawPlayerBody, TakesOffenceForOffAndDefenceForAnythingElse) {
    document::Session session;
    session.colorOff = kTeam;
    session.colorDef = kRed;
    session.colorOffFont = kLabel;
    session.colorDefFont = kGreen;
    document::FrameRecords frame;
    frame.offPlayers = {{10, 20, "4", 0, 15, kSkin}, {100, 20, "5", 1, 15, kSkin}};
    frame.defPlayers = {{10, 200, "6", 0, 15, kBlue}, {100, 200, "7", 2, 15, kBlue}};
    const Scene scene{session, frame};
    TestBoard off;
    drawPlayerBody(off.board, scene, "off", 1);
    EXPECT_EQ(boundsOf(off.pic, kSkin).topLeft(), QPoint(110, 25));
    EXPECT_GT(countOf(off.pic, kTeam), 0);
    EXPECT_GT(countOf(off.pic, kLabel), 0);
    for (const char* kind : {"def", "other", ""}) {
        TestBoard def;
        drawPlayerBody(def.board, scene, kind, 1);
        EXPECT_EQ(boundsOf(def.pic, kBlue).topLeft(), QPoint(110, 205));
        EXPECT_GT(countOf(def.pic, kRed), 0);
        EXPECT_GT(countOf(def.pic, kGreen), 0);
    }
}

TEST(DrawPlayerBody, IndexBeyondTheSideIsPassedOver) {
    document::Session session;
    document::FrameRecords frame;
    TestBoard test;
    drawPlayerBody(test.board, {session, frame}, "off", 12);
    EXPECT_EQ(countOf(test.pic, kWhite), 363 * 332);
}

} // namespace
} // namespace zeltrona::render
