#include "document/sequence.h"
#include "tests/editor/file_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zeltrona::editor {
namespace {

using namespace testing;
using ::testing::ElementsAre;

const std::string kStart = "[Config]\ntxtOff0=4\ntxtDef0=A\nNotes1=\n[Frame1]\nframe=1\noff0=100,100\n"
                           "angleoff0=90\nbodyoff0=0\ndef0=200,100\nangledef0=90\nbodydef0=0\n";

TEST(Authoring, ABallsPathBecomesItsPlaceInTheNextFrame) {
    FileDesk desk(kStart);
    desk.click(tool::kBall);
    desk.move(40, 50);
    desk.press(60, 70);
    desk.release();
    ASSERT_TRUE(makeNewFrame(desk.play.file, desk.session, desk.records).ok());
    desk.host.isCurveChecked = true;
    desk.press(65, 75);
    desk.drag(80, 75);
    desk.drag(90.5F, 80);
    desk.release();
    EXPECT_EQ(desk.records.balls[0], (document::BallRec{60, 70}));
    ASSERT_TRUE(makeNewFrame(desk.play.file, desk.session, desk.records).ok());
    EXPECT_EQ(desk.session.currFrame, 3);
    EXPECT_THAT(desk.records.balls, ElementsAre(document::BallRec{85.5F, 75}));
    EXPECT_FALSE(hasPaths(desk.records.ballPaths));
    EXPECT_EQ(desk.play.file.readWhole("Frame2", "Ball0curve"), "75,70,85.5,75,");
    EXPECT_EQ(desk.play.file.readWhole("Frame2", "Ball0"), "60,70,");
    EXPECT_EQ(desk.play.file.readWhole("Frame3", "Ball0"), "85.5,75,");
    EXPECT_FALSE(desk.play.file.hasKey("Frame3", "Ball0curve"));
}

TEST(Authoring, StraightDragIsTheNextFramesPlaceToo) {
    FileDesk desk(kStart);
    ASSERT_TRUE(makeNewFrame(desk.play.file, desk.session, desk.records).ok());
    desk.press(210, 110);
    desk.drag(180, 90);
    desk.release();
    ASSERT_TRUE(makeNewFrame(desk.play.file, desk.session, desk.records).ok());
    EXPECT_EQ(desk.play.file.readWhole("Frame1", "def0"), "200,100");
    EXPECT_EQ(desk.play.file.readWhole("Frame2", "def0"), "170,80");
    EXPECT_EQ(desk.play.file.readWhole("Frame3", "def0"), "170,80");
}

TEST(Authoring, DragAndReleaseWriteNothing) {
    FileDesk desk(kStart);
    desk.click(tool::kBall);
    desk.press(60, 70);
    desk.release();
    desk.press(110, 110);
    desk.drag(150, 150);
    desk.release();
    desk.click(0);
    desk.press(20, 20);
    desk.press(90, 90);
    desk.press(90, 90, kRight);
    EXPECT_TRUE(desk.play.holds(kStart));
}

/// Every kind of object, drawn by hand.
void drawEverything(Desk& desk) {
    TextAnswer text;
    text.text = "Screen";
    text.fontName = "Arial";
    desk.host.texts = {text};
    desk.host.colors = {0x80C080, 255};
    desk.click(tool::kShadow);
    desk.press(20, 150);
    desk.press(60.5F, 190);
    desk.click(tool::kColor);
    desk.click(tool::kTriangle);
    desk.press(250, 250);
    desk.click(tool::kText);
    desk.press(30, 300);
    desk.click(tool::kBall);
    desk.press(150.25F, 200);
    desk.release();
    desk.click(4);
    desk.host.isCurveChecked = true;
    desk.press(10, 10);
    desk.press(50.5F, 30);
    desk.press(90, 10);
    desk.press(1, 1, kRight);
    desk.click(4);
    desk.press(115, 115);
    desk.drag(130, 120);
    desk.release();
}

TEST(Authoring, StoredFrameIsTheDrawnOne) {
    FileDesk desk(kStart);
    ASSERT_TRUE(makeNewFrame(desk.play.file, desk.session, desk.records).ok());
    drawEverything(desk);
    ASSERT_TRUE(saveFrame(desk.play.file, desk.session, desk.records, 2, false).ok());
    EXPECT_TRUE(desk.play.holds(
        "[Config]\ntxtOff0=4\ntxtDef0=A\nNotes1=\nNotes2=\n[Frame1]\nframe=1\noff0=100,100\nangleoff0=90\n"
        "bodyoff0=0\ndef0=200,100\nangledef0=90\nbodydef0=0\n[Frame2]\nframe=2\noff0=100,100\nangleoff0=90\n"
        "bodyoff0=0\ndef0=200,100\nangledef0=90\nbodydef0=0\nBall0=150.25,200,\noff0curve=115,105,\n"
        "Triangle0=255,250,250,\nLine0=4,1,255,10,10,50.5,30,90,10,\nShadow0=8437888,20,150,60,190,\n"
        "txtPic0=Screen,30,300,Arial,8,0,0,0,0,0,\n"));
    document::FrameRecords loaded;
    loadFrame(desk.play.file, desk.session, loaded, 2);
    EXPECT_EQ(loaded, desk.records);
}

} // namespace
} // namespace zeltrona::editor
