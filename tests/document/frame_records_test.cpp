#include "document/frame_records.h"

#include <gtest/gtest.h>

namespace zeltrona::document {

namespace {

TEST(FrameRecords, AFreshFrameHasNoData) {
    const FrameRecords records;
    EXPECT_FALSE(hasPlayers(records.offPlayers));
    EXPECT_FALSE(hasPlayers(records.defPlayers));
    EXPECT_FALSE(hasBalls(records.balls));
    EXPECT_FALSE(hasPaths(records.offPaths));
    EXPECT_FALSE(hasPaths(records.defPaths));
    EXPECT_FALSE(hasPaths(records.ballPaths));
    EXPECT_FALSE(hasLines(records.lines));
    EXPECT_FALSE(hasTriangles(records.triangles));
    EXPECT_FALSE(hasShadows(records.shadows));
    EXPECT_FALSE(hasTxtPics(records.txtPics));
}

TEST(FrameRecords, ResetLeavesOneEmptyElement) {
    FrameRecords records;
    records.offPlayers.assign(3, {1, 2, "7", 1, 90, 5});
    records.offPaths.assign(2, {4, {{1, 2}, {3, 4}}});
    records.lines.assign(2, {1, 2, true, {{1, 2}, {3, 4}}});
    records.triangles.assign(2, {1, 2, 3});
    records.shadows.assign(2, {1, 2, 3, 4, 5});
    records.balls.assign(2, {1, 2});
    records.txtPics.assign(2, {"a", 1, 2, "Arial", 10, 3, true, true, true, true});
    resetPlayers(records.offPlayers);
    resetPaths(records.offPaths);
    resetLines(records.lines);
    resetTriangles(records.triangles);
    resetShadows(records.shadows);
    resetBalls(records.balls);
    resetTxtPics(records.txtPics);
    EXPECT_EQ(records, FrameRecords());
}

TEST(FrameRecords, EmptyElementsHoldTheirSentinels) {
    const PlayerRec player{0, 1000, "0", 0, 0, 0};
    const PathRec path{0, {{0, 0}}};
    const LineRec line{0, 0, false, {{0, 1000}}};
    const TxtPicRec txtPic{"", 0, 0, "", 8, 0, false, false, false, false};
    EXPECT_EQ(emptyPlayer(), player);
    EXPECT_EQ(emptyPath(), path);
    EXPECT_EQ(emptyLine(), line);
    EXPECT_EQ(emptyTxtPic(), txtPic);
}

TEST(FrameRecords, TwoEmptyElementsCountAsData) {
    EXPECT_TRUE(hasPlayers({emptyPlayer(), emptyPlayer()}));
    EXPECT_TRUE(hasLines({emptyLine(), emptyLine()}));
    EXPECT_TRUE(hasTriangles({{}, {}}));
    EXPECT_TRUE(hasShadows({{}, {}}));
    EXPECT_TRUE(hasBalls({{}, {}}));
    EXPECT_TRUE(hasTxtPics({emptyTxtPic(), emptyTxtPic()}));
}

TEST(FrameRecords, PathsLookAtElementZeroHoweverManyFollow) {
    const PathRec real{3, {{10, 20}, {30, 40}}};
    EXPECT_FALSE(hasPaths({emptyPath(), real}));
    EXPECT_FALSE(hasPaths({PathRec{0, {{0, 0}, {5, 5}}}}));
    EXPECT_TRUE(hasPaths({PathRec{1, {{0, 0}}}}));
    EXPECT_TRUE(hasPaths({PathRec{0, {{0, 1}}}}));
    EXPECT_TRUE(hasPaths({PathRec{0, {{1, 0}}}}));
}

TEST(FrameRecords, PlayerWithAnotherLabelAtTheEmptyPlaceCounts) {
    PlayerRec player = emptyPlayer();
    player.txt = "1";
    EXPECT_TRUE(hasPlayers({player}));
}

TEST(FrameRecords, PlayerLabelledZeroAtTheEmptyPlaceIsAbsent) {
    EXPECT_FALSE(hasPlayers({PlayerRec{0, 1000, "0", 2, 90, 255}}));
    EXPECT_TRUE(hasPlayers({PlayerRec{0, 999, "0", 0, 0, 0}}));
    EXPECT_TRUE(hasPlayers({PlayerRec{1, 1000, "0", 0, 0, 0}}));
}

TEST(FrameRecords, LineTestIgnoresTheColourOnly) {
    EXPECT_FALSE(hasLines({LineRec{0, 255, false, {{0, 1000}, {5, 5}}}}));
    EXPECT_TRUE(hasLines({LineRec{1, 0, false, {{0, 1000}}}}));
    EXPECT_TRUE(hasLines({LineRec{0, 0, true, {{0, 1000}}}}));
    EXPECT_TRUE(hasLines({LineRec{0, 0, false, {{0, 999}}}}));
    EXPECT_TRUE(hasLines({LineRec{0, 0, false, {}}}));
}

TEST(FrameRecords, TriangleAtTheOriginCountsByItsColour) {
    EXPECT_TRUE(hasTriangles({TriangleRec{0, 0, 255}}));
    EXPECT_TRUE(hasTriangles({TriangleRec{1, 0, 0}}));
    EXPECT_TRUE(hasTriangles({TriangleRec{0, 1, 0}}));
}

TEST(FrameRecords, BallAtTheOriginIsAbsent) {
    EXPECT_FALSE(hasBalls({BallRec{0, 0}}));
    EXPECT_TRUE(hasBalls({BallRec{1, 0}}));
    EXPECT_TRUE(hasBalls({BallRec{0, 1}}));
}

TEST(FrameRecords, ShadowColourDoesNotCount) {
    EXPECT_FALSE(hasShadows({ShadowRec{0, 0, 0, 0, 255}}));
    EXPECT_TRUE(hasShadows({ShadowRec{1, 0, 0, 0, 0}}));
    EXPECT_TRUE(hasShadows({ShadowRec{0, 1, 0, 0, 0}}));
    EXPECT_TRUE(hasShadows({ShadowRec{0, 0, 1, 0, 0}}));
    EXPECT_TRUE(hasShadows({ShadowRec{0, 0, 0, 1, 0}}));
}

TEST(FrameRecords, TextAndColourOfATextPictureDoNotCount) {
    TxtPicRec absent = emptyTxtPic();
    absent.text = "Screen";
    absent.color = 255;
    EXPECT_FALSE(hasTxtPics({absent}));
}

TEST(FrameRecords, EveryOtherFieldOfATextPictureCounts) {
    const auto present = [](auto change) {
        TxtPicRec txtPic = emptyTxtPic();
        change(txtPic);
        return hasTxtPics({txtPic});
    };
    EXPECT_TRUE(present([](TxtPicRec& t) { t.x = 1; }));
    EXPECT_TRUE(present([](TxtPicRec& t) { t.y = 1; }));
    EXPECT_TRUE(present([](TxtPicRec& t) { t.fontName = "Arial"; }));
    EXPECT_TRUE(present([](TxtPicRec& t) { t.fontSize = 10; }));
    EXPECT_TRUE(present([](TxtPicRec& t) { t.bold = true; }));
    EXPECT_TRUE(present([](TxtPicRec& t) { t.italic = true; }));
    EXPECT_TRUE(present([](TxtPicRec& t) { t.underline = true; }));
    EXPECT_TRUE(present([](TxtPicRec& t) { t.strikethrough = true; }));
}

} // namespace

} // namespace zeltrona::document
