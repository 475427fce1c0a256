#include "tests/editor/file_desk.h"

#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;

const std::string kHead =
    "[Config]\ntxtOff0=4\nNotes1=\n[Frame1]\nframe=1\noff0=10,20\nangleoff0=90\nbodyoff0=0\n";

/// The frame's keys behind the player, a press, and the keys after it.
struct RemovalCase {
    const char* name;
    const char* before;
    float x;
    float y;
    const char* after;
};

void PrintTo(const RemovalCase& row, std::ostream* out) {
    *out << row.name;
}

constexpr char kThreeBalls[] = "Ball0=100,100,\nBall1=200,100.5,\nBall2=300,100,\nTriangle0=5,50,200,\n";
constexpr char kThreeTriangles[] =
    "Triangle0=1,100,100,\nTriangle1=2,200,100.5,\nTriangle2=3,300,100,\nLine0=0,0,7,40,300,80,310,\n";
constexpr char kThreeShadows[] =
    "Shadow0=1,90,90,110,110,\nShadow1=2,210.5,110,190,90,\nShadow2=3,290,110,310,90,\nTriangle0=5,50,200,\n";
constexpr char kThreeTexts[] =
    "txtPic0=one,100,110,Arial,10,5,1,0,0,0,\ntxtPic1=two,200,110.5,Arial,10,5,0,1,0,0,\n"
    "txtPic2=six,300,110,Arial,10,5,0,0,1,1,\nTriangle0=5,50,200,\n";
constexpr char kThreeLines[] = "Line0=0,0,7,90,90,110,110,\nLine1=1,1,8,190,90,200.5,100,210,110,\n"
                               "Line2=4,0,9,300,90,300,110,\nTriangle0=5,50,200,\n";

const RemovalCase kRemovals[] = {
    {"FirstBall", kThreeBalls, 100, 100, "Triangle0=5,50,200,\nBall0=200,100.5,\nBall1=300,100,\n"},
    {"MiddleBall", kThreeBalls, 200, 100, "Ball0=100,100,\nTriangle0=5,50,200,\nBall1=300,100,\n"},
    {"LastBall", kThreeBalls, 300, 100, "Ball0=100,100,\nBall1=200,100.5,\nTriangle0=5,50,200,\n"},
    {"OnlyBall", "Ball0=100,100,\nTriangle0=5,50,200,\n", 100, 100, "Triangle0=5,50,200,\n"},

    {"FirstTriangle", kThreeTriangles, 105, 95,
     "Line0=0,0,7,40,300,80,310,\nTriangle0=2,200,100.5,\nTriangle1=3,300,100,\n"},
    {"MiddleTriangle", kThreeTriangles, 205, 95,
     "Triangle0=1,100,100,\nLine0=0,0,7,40,300,80,310,\nTriangle1=3,300,100,\n"},
    {"LastTriangle", kThreeTriangles, 305, 95,
     "Triangle0=1,100,100,\nTriangle1=2,200,100.5,\nLine0=0,0,7,40,300,80,310,\n"},
    {"OnlyTriangle", "Triangle0=1,100,100,\nBall0=20,300,\n", 105, 95, "Ball0=20,300,\n"},

    {"FirstShadow", kThreeShadows, 100, 100,
     "Triangle0=5,50,200,\nShadow0=2,210.5,110,190,90,\nShadow1=3,290,110,310,90,\n"},
    {"MiddleShadow", kThreeShadows, 200, 100,
     "Shadow0=1,90,90,110,110,\nTriangle0=5,50,200,\nShadow1=3,290,110,310,90,\n"},
    {"LastShadow", kThreeShadows, 300, 100,
     "Shadow0=1,90,90,110,110,\nShadow1=2,210.5,110,190,90,\nTriangle0=5,50,200,\n"},
    {"OnlyShadow", "Shadow0=1,90,90,110,110,\nBall0=20,300,\n", 100, 100, "Ball0=20,300,\n"},

    {"FirstText", kThreeTexts, 105, 100,
     "Triangle0=5,50,200,\ntxtPic0=two,200,110.5,Arial,10,5,0,1,0,0,\n"
     "txtPic1=six,300,110,Arial,10,5,0,0,1,1,\n"},
    {"MiddleText", kThreeTexts, 205, 100,
     "txtPic0=one,100,110,Arial,10,5,1,0,0,0,\nTriangle0=5,50,200,\n"
     "txtPic1=six,300,110,Arial,10,5,0,0,1,1,\n"},
    {"LastText", kThreeTexts, 305, 100,
     "txtPic0=one,100,110,Arial,10,5,1,0,0,0,\ntxtPic1=two,200,110.5,Arial,10,5,0,1,0,0,\n"
     "Triangle0=5,50,200,\n"},
    {"OnlyText", "txtPic0=one,100,110,Arial,10,5,1,0,0,0,\nBall0=20,300,\n", 105, 100, "Ball0=20,300,\n"},

    {"FirstLine", kThreeLines, 100, 100,
     "Triangle0=5,50,200,\nLine0=1,1,8,190,90,200.5,100,210,110,\nLine1=4,0,9,300,90,300,110,\n"},
    {"MiddleLine", kThreeLines, 205, 105,
     "Line0=0,0,7,90,90,110,110,\nTriangle0=5,50,200,\nLine1=4,0,9,300,90,300,110,\n"},
    {"LastLine", kThreeLines, 301, 100,
     "Line0=0,0,7,90,90,110,110,\nLine1=1,1,8,190,90,200.5,100,210,110,\nTriangle0=5,50,200,\n"},
    {"OnlyLine", "Line0=0,0,7,90,90,110,110,\nBall0=20,300,\n", 100, 100, "Ball0=20,300,\n"},

    {"NothingHit", "Ball0=100,100,\nBall5=1,1,\n", 250, 250, "Ball0=100,100,\nBall5=1,1,\n"},

    {"BallWithTheOnlyPath", "Ball0=100,100,\nBall0curve=100,100,120,130,\n", 100, 100, ""},
    {"BallWithTheFirstOfThreePaths",
     "Ball0=100,100,\nBall1=200,100,\nBall2=300,100,\nBall0curve=1,1,\nBall1curve=2,2,\nBall2curve=3,3,\n",
     100, 100, "Ball0=200,100,\nBall1=300,100,\nBall0curve=2,2,\nBall1curve=3,3,\n"},
    {"BallWithTheLastOfThreePaths",
     "Ball0=100,100,\nBall1=200,100,\nBall2=300,100,\nBall0curve=1,1,\nBall1curve=2,2,\nBall2curve=3,3,\n",
     300, 100, "Ball0=100,100,\nBall1=200,100,\nBall0curve=1,1,\nBall1curve=2,2,\n"},
    {"BallWithoutAPathLeavesTheOthersTheirOwners",
     "Ball0=100,100,\nBall1=200,100,\nBall2=300,100,\nBall1curve=2,2,\n", 100, 100,
     "Ball1curve=2,2,\nBall0=200,100,\nBall1=300,100,\n"},
};

class RemovalAtPlace : public ::testing::TestWithParam<RemovalCase> {};

TEST_P(RemovalAtPlace, LeavesTheseBytes) {
    const RemovalCase& row = GetParam();
    FileDesk desk(kHead + row.before);
    desk.takeTool(tool::kDelete);
    desk.press(row.x, row.y);
    EXPECT_TRUE(desk.play.holds(kHead + row.after));
}

TEST_P(RemovalAtPlace, LeavesInMemoryWhatIsInTheFile) {
    const RemovalCase& row = GetParam();
    FileDesk desk(kHead + row.before);
    desk.takeTool(tool::kDelete);
    desk.press(row.x, row.y);
    document::FrameRecords loaded;
    loadFrame(desk.play.file, desk.session, loaded, 1);
    EXPECT_EQ(loaded, desk.records);
}

INSTANTIATE_TEST_SUITE_P(, RemovalAtPlace, ::testing::ValuesIn(kRemovals),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(RemovalInTheFile, OtherFramesReadTheSame) {
    std::string lines = "[Config]\ntxtOff0=4\nNotes1=\nNotes2=\nNotes3=\nNotes4=\n";
    for (int i = 1; i <= 4; ++i) {
        lines += "[Frame" + std::to_string(i) + "]\nframe=" + std::to_string(i)
                 + "\noff0=10,20\nangleoff0=90\nbodyoff0=0\nBall0=100,100,\n";
    }
    FileDesk desk(lines, 3);
    desk.takeTool(tool::kDelete);
    desk.press(100, 100);
    std::string wanted = lines;
    wanted.erase(wanted.find("Ball0=100,100,\n", wanted.find("[Frame3]")),
                 std::string("Ball0=100,100,\n").size());
    EXPECT_TRUE(desk.play.holds(wanted));
}

TEST(RemovalInTheFile, StoresTheUnsavedRestOfTheFrameToo) {
    FileDesk desk(kHead + "Ball0=100,100,\nBall1=200,100,\n");
    desk.takeTool(tool::kDelete);
    desk.records.offPlayers[0].x = 60.5F;
    desk.records.triangles = {{50, 60.25F, 9}};
    desk.press(200, 100);
    std::string head = kHead;
    head.replace(head.find("10,20"), 5, "60,20");
    EXPECT_TRUE(desk.play.holds(head + "Ball0=100,100,\nTriangle0=9,50,60.25,\n"));
}

TEST(RemovalInTheFile, OneAfterAnotherUntilNothingIsLeft) {
    FileDesk desk(kHead + kThreeBalls);
    desk.takeTool(tool::kDelete);
    for (const float x : {100.0F, 200.0F, 300.0F}) {
        desk.press(x, 100);
        desk.release();
    }
    desk.press(52, 195);
    EXPECT_TRUE(desk.play.holds(kHead));
    EXPECT_FALSE(hasBalls(desk.records.balls));
    EXPECT_FALSE(hasTriangles(desk.records.triangles));
}

TEST(RemovalInTheFile, KeyOfAPathWhoseOwnerIsNotItsPlaceStaysBehind) {
    FileDesk desk(kHead + "Ball0=100,100,\nBall1=200,100,\nBall1curve=2,2,\n");
    desk.takeTool(tool::kDelete);
    desk.press(200, 100);
    EXPECT_FALSE(hasPaths(desk.records.ballPaths));
    EXPECT_TRUE(desk.play.holds(kHead + "Ball0=100,100,\nBall1curve=2,2,\n"));
}

TEST(RemovalInTheFile, PathOfBallOneKeepsPlaceAndOwnerWhenBallNullGoes) {
    FileDesk desk(kHead + "Ball0=100,100,\nBall1=200,100,\nBall2=300,100,\nBall1curve=2,2,\n");
    desk.takeTool(tool::kDelete);
    desk.press(100, 100);
    ASSERT_EQ(desk.records.ballPaths.size(), 1U);
    EXPECT_EQ(desk.records.ballPaths[0].owner, 1);
    EXPECT_EQ(desk.records.balls[1], (document::BallRec{300, 100}));
}

TEST(RemovalInTheFile, WithoutAKeyInTheFileTheObjectGoesAllTheSame) {
    FileDesk desk(kHead);
    desk.takeTool(tool::kDelete);
    desk.records.balls = {{100, 100}, {200, 100}};
    desk.press(100, 100);
    EXPECT_TRUE(desk.play.holds(kHead + "Ball0=200,100,\n"));
}

} // namespace
} // namespace zeltrona::editor
