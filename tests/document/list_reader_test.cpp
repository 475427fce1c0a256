#include "document/frame_store.h"
#include "document/list_reader.h"
#include "tests/document/temporary_play.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ostream>

namespace zeltrona::document {

namespace {

using testing::ElementsAre;
using tests::TemporaryPlay;

std::vector<BallRec> ballsOf(std::string_view lines) {
    const TemporaryPlay play(lines);
    std::vector<BallRec> balls(3, {7, 7});
    readBalls(play.file, 1, balls);
    return balls;
}

std::vector<LineRec> linesOf(std::string_view lines) {
    const TemporaryPlay play(lines);
    std::vector<LineRec> records(3);
    readLines(play.file, 1, records);
    return records;
}

std::vector<TxtPicRec> txtPicsOf(std::string_view lines) {
    const TemporaryPlay play(lines);
    std::vector<TxtPicRec> records(3);
    readTxtPics(play.file, 1, records);
    return records;
}

TEST(ListReader, ReadsBallsToTheFirstMissingIndex) {
    EXPECT_THAT(ballsOf("[Frame1]\nBall0=128,92.5,\nBall1=1,2,\nBall3=5,6,\n"),
                ElementsAre(BallRec{128, 92.5F}, BallRec{1, 2}));
}

TEST(ListReader, AnEmptyValueEndsTheArrayToo) {
    EXPECT_THAT(ballsOf("[Frame1]\nBall0=1,2,\nBall1=\nBall2=5,6,\n"), ElementsAre(BallRec{1, 2}));
}

TEST(ListReader, AFrameWithoutKeysLeavesTheEmptyState) {
    EXPECT_THAT(ballsOf("[Frame1]\nframe=1\n"), ElementsAre(BallRec{}));
    EXPECT_THAT(linesOf("[Frame1]\nframe=1\n"), ElementsAre(emptyLine()));
    EXPECT_THAT(txtPicsOf("[Frame1]\nframe=1\n"), ElementsAre(emptyTxtPic()));
}

TEST(ListReader, KeysMatchWhateverTheirCase) {
    EXPECT_THAT(ballsOf("[FRAME1]\nbALL0=1,2,\n"), ElementsAre(BallRec{1, 2}));
}

TEST(ListReader, AValueWithoutItsLastCommaLosesItsLastField) {
    EXPECT_THAT(ballsOf("[Frame1]\nBall0=5,6\n"), ElementsAre(BallRec{5, 0}));
}

TEST(ListReader, FieldsBeyondTheLastAreIgnored) {
    EXPECT_THAT(ballsOf("[Frame1]\nBall0=5,6,7,8,\n"), ElementsAre(BallRec{5, 6}));
}

TEST(ListReader, AValueWithoutAValidFieldLeavesAnEmptyElement) {
    EXPECT_THAT(ballsOf("[Frame1]\nBall0=x,y,\nBall1=5,6,\nBall2=?\nBall3=7,8,\n"),
                ElementsAre(BallRec{}, BallRec{5, 6}, BallRec{}, BallRec{7, 8}));
    EXPECT_THAT(linesOf("[Frame1]\nLine0=x,\nLine1=y,\nLine2=4,0,9,1,2,\n"),
                ElementsAre(emptyLine(), emptyLine(), LineRec{4, 9, false, {{1, 2}}}));
    EXPECT_THAT(txtPicsOf("[Frame1]\ntxtPic0=a,\ntxtPic1=no comma\n"),
                ElementsAre(TxtPicRec{"a", 0, 0, "", 0, 0, false, false, false, false}, emptyTxtPic()));
}

TEST(ListReader, ReadsTriangles) {
    const TemporaryPlay play("[Frame2]\nTriangle0=255,60,70,\nTriangle1=1,2.5,-3,\n");
    std::vector<TriangleRec> triangles(3);
    readTriangles(play.file, 2, triangles);
    EXPECT_THAT(triangles, ElementsAre(TriangleRec{60, 70, 255}, TriangleRec{2.5F, -3, 1}));
}

TEST(ListReader, ReadsShadows) {
    const TemporaryPlay play("[Frame2]\nShadow0=12632256,90,60.5,70.5,31.5,\nShadow1=1,2,3,\n");
    std::vector<ShadowRec> shadows(3);
    readShadows(play.file, 2, shadows);
    EXPECT_THAT(shadows, ElementsAre(ShadowRec{90, 60.5F, 70, 32, 12632256}, ShadowRec{2, 3, 0, 0, 1}));
}

TEST(ListReader, ReadsLines) {
    EXPECT_THAT(linesOf("[Frame1]\nLine0=4,0,0,120,88,200,140,\nLine1=5,1,255,40,200,80,210,120,240,\n"),
                ElementsAre(LineRec{4, 0, false, {{120, 88}, {200, 140}}},
                            LineRec{5, 255, true, {{40, 200}, {80, 210}, {120, 240}}}));
}

TEST(ListReader, OnlyTheExactTextOneMakesALineCurved) {
    const auto curved = [](const std::string& field) {
        return linesOf("[Frame1]\nLine0=4," + field + ",0,1,2,\n")[0].curved;
    };
    EXPECT_TRUE(curved("1"));
    EXPECT_FALSE(curved("-1"));
    EXPECT_FALSE(curved("1.0"));
    EXPECT_FALSE(curved(" 1"));
    EXPECT_FALSE(curved("01"));
}

TEST(ListReader, ALineOfFewerThanFourFieldsHasNoPoints) {
    EXPECT_THAT(linesOf("[Frame1]\nLine0=4,1,255,\n"), ElementsAre(LineRec{4, 255, true, {}}));
    EXPECT_THAT(linesOf("[Frame1]\nLine0=4,\n"), ElementsAre(LineRec{4, 0, false, {}}));
}

TEST(ListReader, TheLastPointOfALineMayLackItsY) {
    EXPECT_THAT(linesOf("[Frame1]\nLine0=4,0,0,1,2,3,\n"),
                ElementsAre(LineRec{4, 0, false, {{1, 2}, {3, 0}}}));
}

TEST(ListReader, ALongLineComesBackShorter) {
    std::string value = "4,0,0,"; // 6 bytes, then 10 to a point: 699 of them, and 2 more bytes of the next
    for (int i = 0; i < 900; ++i) {
        value += "1000,2000,";
    }
    const TemporaryPlay play("[Frame1]\nLine0=" + value + "\n");
    std::vector<LineRec> lines;
    readLines(play.file, 1, lines);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].pts.size(), 699U);
    EXPECT_EQ(lines[0].pts.back(), (PointF{1000, 2000}));
    EXPECT_TRUE(play.holds("[Frame1]\nLine0=" + value + "\n"));
}

TEST(ListReader, ALineCutBehindAnXLacksItsLastY) {
    std::string value = "4,0,1000,"; // 9 bytes, so the cut falls behind an x
    for (int i = 0; i < 900; ++i) {
        value += "1000,2000,";
    }
    const std::vector<LineRec> lines = linesOf("[Frame1]\nLine0=" + value + "\n");
    EXPECT_EQ(lines[0].pts.size(), 699U);
    EXPECT_EQ(lines[0].pts.back(), (PointF{1000, 0}));
}

TEST(ListReader, SixThousandNineHundredNinetyEightCharactersComeBack) {
    const std::string fits(6997, 'a');
    EXPECT_EQ(txtPicsOf("[Frame1]\ntxtPic0=" + fits + ",1,\n")[0].text, fits);
    const std::string tooLong(6998, 'a');
    EXPECT_EQ(txtPicsOf("[Frame1]\ntxtPic0=" + tooLong + ",1,\n")[0], emptyTxtPic());
}

TEST(ListReader, ReadsTextPictures) {
    EXPECT_THAT(txtPicsOf("[Frame1]\ntxtPic0=Screen,200,30.5,Arial,10,255,1,0,1,0,\n"
                          "txtPic1=Roll,1,2,Arial,10,0,0,1,0,1,\n"),
                ElementsAre(TxtPicRec{"Screen", 200, 30.5F, "Arial", 10, 255, true, false, true, false},
                            TxtPicRec{"Roll", 1, 2, "Arial", 10, 0, false, true, false, true}));
}

TEST(ListReader, ACommaInATextShiftsAllLaterFields) {
    const TxtPicRec txtPic = txtPicsOf("[Frame1]\ntxtPic0=Cut, 45 left,200,30,Arial,10,0,1,0,0,0,\n")[0];
    EXPECT_EQ(txtPic, (TxtPicRec{"Cut", 45, 200, "30", 0, 10, false, true, false, false}));
}

TEST(ListReader, NumbersOfATextPictureAreTheOnesAtTheStart) {
    const TxtPicRec txtPic = txtPicsOf("[Frame1]\ntxtPic0=a,12px,,Arial,10.5pt,x,-1,true,1,1,\n")[0];
    EXPECT_EQ(txtPic, (TxtPicRec{"a", 12, 0, "Arial", 10, 0, false, false, true, true}));
}

TEST(ListReader, FrameBallsCarryTheirIndexAsText) {
    const TemporaryPlay play("[Frame3]\nBall0=128,92.5,\nBall1=1,2,\n");
    std::vector<PlayerRec> dest{emptyPlayer()};
    readFrameBalls(play.file, 3, dest);
    EXPECT_THAT(dest, ElementsAre(PlayerRec{128, 92.5F, "0", 0, 0, 0}, PlayerRec{1, 2, "1", 0, 0, 0}));
}

TEST(ListReader, FrameBallsLeaveTheirDestinationWhenThereAreNone) {
    const TemporaryPlay play("[Frame3]\nframe=3\n");
    std::vector<PlayerRec> dest{emptyPlayer(), emptyPlayer()};
    readFrameBalls(play.file, 3, dest);
    EXPECT_THAT(dest, ElementsAre(emptyPlayer(), emptyPlayer()));
}

TEST(ListReader, TenThousandBallsAreAllRead) {
    std::string lines = "[Frame1]\n";
    for (int i = 0; i < 10000; ++i) {
        lines += "Ball" + std::to_string(i) + "=" + std::to_string(i) + ",5,\n";
    }
    const std::vector<BallRec> balls = ballsOf(lines);
    ASSERT_EQ(balls.size(), 10000U);
    EXPECT_EQ(balls.back(), (BallRec{9999, 5}));
}

TEST(ListReader, AnArrayEndsAtIndex32767) {
    std::string lines = "[Frame1]\n";
    for (int i = 0; i < 33000; ++i) {
        lines += "Ball" + std::to_string(i) + "=1,5,\n";
    }
    EXPECT_EQ(ballsOf(lines).size(), 32768U);
}

struct NumberCase {
    const char* name;
    const char* field;
    std::int32_t color;
    std::int16_t size;
    friend std::ostream& operator<<(std::ostream& out, const NumberCase& row) { return out << row.name; }
};

class WholeNumberField : public testing::TestWithParam<NumberCase> {};

TEST_P(WholeNumberField, RoundsHalfToEvenAndWraps) {
    const std::string field = GetParam().field;
    const TemporaryPlay play("[Frame1]\nShadow0=" + field + ",1,2," + field + ",4,\n");
    std::vector<ShadowRec> shadows;
    readShadows(play.file, 1, shadows);
    EXPECT_EQ(shadows[0].color, GetParam().color);
    EXPECT_EQ(shadows[0].w, GetParam().size);
}

INSTANTIATE_TEST_SUITE_P(
    ListReader, WholeNumberField,
    testing::Values(NumberCase{"HalfDown", "2.5", 2, 2}, NumberCase{"HalfUp", "3.5", 4, 4},
                    NumberCase{"Negative", "-1", -1, -1}, NumberCase{"Beyond16Bits", "32768", 32768, -32768},
                    NumberCase{"Beyond24Bits", "16777216", 16777216, 0},
                    NumberCase{"Beyond32Bits", "4294967297", 1, 1}, NumberCase{"Huge", "1e300", 0, 0}),
    [](const auto& given) { return given.param.name; });

TEST(ListReader, AStyleWrapsToEightBits) {
    EXPECT_EQ(linesOf("[Frame1]\nLine0=257,0,0,1,2,\n")[0].style, 1);
    EXPECT_EQ(linesOf("[Frame1]\nLine0=-1,0,0,1,2,\n")[0].style, 255);
}

TEST(ListReader, CoordinatesBeyondWholeNumbersStayFinite) {
    const std::vector<BallRec> balls =
        ballsOf("[Frame1]\nBall0=70000,-5000000000,\nBall1=1e300,-1e300,\nBall2=nan,inf,3,4,\n");
    ASSERT_EQ(balls.size(), 3U);
    EXPECT_EQ(balls[0], (BallRec{70000.0F, -5e9F}));
    EXPECT_TRUE(std::isfinite(balls[1].x) && std::isfinite(balls[1].y));
    EXPECT_EQ(balls[2], (BallRec{3, 4}));
}

} // namespace

} // namespace zeltrona::document
