#include "document/frame_records.h"
#include "document/frame_store.h"
#include "tests/document/temporary_play.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::document {

namespace {

using testing::ElementsAre;
using tests::TemporaryPlay;

std::vector<PathRec> offPathsOf(std::string_view keys) {
    const TemporaryPlay play("[Frame1]\n" + std::string(keys));
    std::vector<PathRec> paths(3, {9, {{1, 1}}});
    readFramePaths(play.file, 1, "off", paths);
    return paths;
}

TEST(CurveReader, ReadsThePathsOfASide) {
    EXPECT_THAT(offPathsOf("off1curve=40,200,55.5,196,71,188.25,\n"),
                ElementsAre(PathRec{1, {{40, 200}, {55.5F, 196}, {71, 188.25F}}}));
}

TEST(CurveReader, HolesAreAllowed) {
    EXPECT_THAT(offPathsOf("off11curve=5,6,\noff0curve=1,2,\noff4curve=3,4,\noff12curve=7,8,\n"),
                ElementsAre(PathRec{0, {{1, 2}}}, PathRec{4, {{3, 4}}}, PathRec{11, {{5, 6}}}));
}

TEST(CurveReader, WithoutKeysThePathsAreEmpty) {
    EXPECT_THAT(offPathsOf("frame=1\n"), ElementsAre(emptyPath()));
    EXPECT_THAT(offPathsOf("off0curve=x,y,\n"), ElementsAre(emptyPath()));
}

TEST(CurveReader, AFieldThatIsNoNumberIsSkipped) {
    EXPECT_THAT(offPathsOf("off2curve=1,x,2,3,,4,\n"), ElementsAre(PathRec{2, {{1, 2}, {3, 4}}}));
}

TEST(CurveReader, ANumberLeftOverIsThePointsX) {
    EXPECT_THAT(offPathsOf("off2curve=1,2,3,\noff3curve=4,5,6,\n"),
                ElementsAre(PathRec{2, {{1, 2}, {3, 0}}}, PathRec{3, {{4, 5}, {6, 0}}}));
}

TEST(CurveReader, AFirstPathOfOneNumberLeavesItsElementToTheNext) {
    EXPECT_THAT(offPathsOf("off2curve=7,\noff5curve=1,2,\n"), ElementsAre(PathRec{5, {{1, 2}}}));
    EXPECT_THAT(offPathsOf("off2curve=7,\n"), ElementsAre(PathRec{2, {{7, 0}}}));
}

TEST(CurveReader, ALaterPathOfOneNumberStays) {
    EXPECT_THAT(offPathsOf("off2curve=1,2,\noff5curve=7,\n"),
                ElementsAre(PathRec{2, {{1, 2}}}, PathRec{5, {{7, 0}}}));
}

TEST(CurveReader, APathLongerThanTheBufferIsCut) {
    std::string value;
    for (int i = 0; i < 1000; ++i) {
        value += "100,200,";
    }
    const std::vector<PathRec> paths = offPathsOf("off0curve=" + value + "\n");
    // 6998 characters: 874 points of eight, and six more that hold one x.
    ASSERT_EQ(paths[0].pts.size(), 875U);
    EXPECT_EQ(paths[0].pts.back(), (PointF{100, 0}));
}

TEST(CurveReader, SidesAreKeptApart) {
    const TemporaryPlay play("[Frame1]\noff0curve=1,2,\ndef0curve=3,4,\n");
    std::vector<PathRec> paths;
    readFramePaths(play.file, 1, "def", paths);
    EXPECT_THAT(paths, ElementsAre(PathRec{0, {{3, 4}}}));
}

TEST(CurveReader, BallPathsGoToOwnerHundred) {
    const TemporaryPlay play("[Frame1]\nBall0curve=1,2,\nball100curve=3,4,\nball101curve=5,6,\n");
    std::vector<PathRec> paths;
    readFrameBallPaths(play.file, 1, "Ball", paths);
    EXPECT_THAT(paths, ElementsAre(PathRec{0, {{1, 2}}}, PathRec{100, {{3, 4}}}));
}

TEST(CurveReader, AnotherKindThanBallReturnsAtOnce) {
    const TemporaryPlay play("[Frame1]\nBall0curve=1,2,\noff0curve=3,4,\n");
    const std::vector<PathRec> before{{9, {{1, 1}}}, {8, {{2, 2}}}};
    for (const char* kind : {"off", "ball", "BALL", ""}) {
        std::vector<PathRec> paths = before;
        readFrameBallPaths(play.file, 1, kind, paths);
        EXPECT_EQ(paths, before) << kind;
    }
}

} // namespace

} // namespace zeltrona::document
