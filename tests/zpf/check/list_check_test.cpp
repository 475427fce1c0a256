#include "tests/zpf/check/checked_play.h"

#include <gtest/gtest.h>

namespace zeltrona::zpf {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::vector<std::string> inFrame(const std::string& lines) {
    return shortFindingsOf(playWith("", lines));
}

TEST(ListCheck, ListEndsAtItsFirstHole) {
    EXPECT_THAT(inFrame("Ball0=1,2,\nBall2=3,4,\nBall3=5,6,\n"),
                ElementsAre("hole [Frame1] Ball2 10", "hole [Frame1] Ball3 11"));
    EXPECT_THAT(inFrame("Line1=4,0,0,1,2,3,4,\n"), ElementsAre("hole [Frame1] Line1 9"));
    EXPECT_THAT(findingsOf(playWith("", "Ball0=1,2,\nBall2=3,4,\n"))[0].text, HasSubstr("Ball1 is missing"));
}

TEST(ListCheck, EmptyValueEndsAListToo) {
    EXPECT_THAT(inFrame("Shadow0=0,1,2,3,4,\nShadow1=\nShadow2=0,1,2,3,4,\n"),
                ElementsAre("hole [Frame1] Shadow2 11"));
    EXPECT_THAT(inFrame("Shadow0=0,1,2,3,4,\nShadow1=\n"), IsEmpty()) << "nothing stands behind it";
}

TEST(ListCheck, OrderInTheFileMakesNoHole) {
    EXPECT_THAT(inFrame("Ball1=3,4,\nBall0=1,2,\n"), IsEmpty());
}

TEST(ListCheck, ListLongerThanItsBufferIsCut) {
    std::string points;
    while (points.size() < 6990) {
        points += "1234,5678,";
    }
    EXPECT_THAT(inFrame("Line0=4,0,000," + points.substr(0, 6990) + "\n"), IsEmpty())
        << "6998 characters fit";
    EXPECT_THAT(inFrame("Line0=4,0,0000," + points.substr(0, 6990) + "\n"),
                ElementsAre("cut [Frame1] Line0 9", "missing-field [Frame1] Line0 9"));
}

TEST(ListCheck, FieldThatNoCommaEndsIsLost) {
    EXPECT_THAT(inFrame("Ball0=1,2,\nBall1=3,4,5\n"), ElementsAre("no-closing-comma [Frame1] Ball1 10"));
    EXPECT_THAT(inFrame("off0curve=1,2,3,4\n"),
                ElementsAre("no-closing-comma [Frame1] off0curve 9", "missing-field [Frame1] off0curve 9"));
}

TEST(ListCheck, FieldThatIsNoNumberIsSkipped) {
    const auto found = findingsOf(playWith("", "Triangle0=0,x,1,y,2,\n"));
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(shortOf(found[0]), "not-a-number [Frame1] Triangle0 9");
    EXPECT_THAT(found[0].text, HasSubstr("\"x\""));
    EXPECT_THAT(found[0].text, HasSubstr("2 such fields"));
    EXPECT_THAT(inFrame("Triangle0=0, 1.5 ,-2e1,\n"), IsEmpty());
}

TEST(ListCheck, FieldsTooFewAndTooManyAreTold) {
    EXPECT_THAT(inFrame("Ball0=1,\nTriangle0=0,1,2,3,\nShadow0=0,1,2,3,\n"),
                ElementsAre("missing-field [Frame1] Ball0 9", "extra-field [Frame1] Triangle0 10",
                            "missing-field [Frame1] Shadow0 11"));
}

TEST(ListCheck, LineWithoutAPointShowsNothing) {
    EXPECT_THAT(inFrame("Line0=4,0,0,\nLine1=4,0,0,1,\n"),
                ElementsAre("missing-field [Frame1] Line0 9", "missing-field [Frame1] Line1 10"));
}

TEST(ListCheck, LineOfOnePointShowsNothingEither) {
    EXPECT_THAT(inFrame("Line0=4,0,0,10,20,\n"), ElementsAre("missing-field [Frame1] Line0 9"));
    EXPECT_THAT(inFrame("Line0=4,0,0,10,20,30,40,\n"), IsEmpty());
}

TEST(ListCheck, StyleIsOneOfTheFive) {
    for (const char* style : {"5", "-1", "1.5"}) {
        EXPECT_THAT(inFrame("Line0=" + std::string(style) + ",0,0,1,2,3,4,\n"),
                    ElementsAre("bad-value [Frame1] Line0 9"))
            << style;
    }
    EXPECT_THAT(inFrame("Line0=4,0,0,1,2,3,4,\n"), IsEmpty());
}

TEST(ListCheck, ColourIsOne) {
    for (const char* color : {"16777216", "-1", "0.5"}) {
        const std::string one(color);
        EXPECT_THAT(inFrame("Line0=4,0," + one + ",1,2,3,4,\n"), ElementsAre("bad-value [Frame1] Line0 9"));
        EXPECT_THAT(inFrame("Triangle0=" + one + ",1,2,\n"), ElementsAre("bad-value [Frame1] Triangle0 9"));
        EXPECT_THAT(inFrame("Shadow0=" + one + ",1,2,3,4,\n"), ElementsAre("bad-value [Frame1] Shadow0 9"));
        EXPECT_THAT(inFrame("txtPic0=A,1,2,Arial,8," + one + ",0,0,0,0,\n"),
                    ElementsAre("bad-value [Frame1] txtPic0 9"));
    }
    EXPECT_THAT(inFrame("Shadow0=16777215,1,2,3,4,\n"), IsEmpty());
}

TEST(ListCheck, CurvedIsOneOrZero) {
    EXPECT_THAT(inFrame("Line0=4,-1,0,1,2,3,4,\n"), ElementsAre("bad-value [Frame1] Line0 9"));
}

TEST(ListCheck, CommaInATextShiftsWhatFollows) {
    EXPECT_THAT(inFrame("txtPic0=Screen, then roll,1,2,Arial,10,0,1,0,0,0,\n"),
                ElementsAre("comma-in-text [Frame1] txtPic0 9"));
}

TEST(ListCheck, FieldsOfATextAreLookedAt) {
    EXPECT_THAT(inFrame("txtPic0=A,1,2,Arial,10,0,1,0,0,\ntxtPic1=A,one,2,Arial,10,0,1,0,0,yes,\n"),
                ElementsAre("missing-field [Frame1] txtPic0 9", "not-a-number [Frame1] txtPic1 10",
                            "bad-value [Frame1] txtPic1 10"));
}

TEST(ListCheck, LoneObjectThatEqualsTheEmptyStateCountsAsAbsent) {
    EXPECT_THAT(inFrame("Ball0=0,0,\n"), ElementsAre("empty-object [Frame1] Ball0 9"));
    EXPECT_THAT(inFrame("Triangle0=0,0,0,\n"), ElementsAre("empty-object [Frame1] Triangle0 9"));
    EXPECT_THAT(inFrame("Shadow0=255,0,0,0,0,\n"), ElementsAre("empty-object [Frame1] Shadow0 9"));
    EXPECT_THAT(inFrame("Line0=0,0,9,0,1000,\n"),
                ElementsAre("missing-field [Frame1] Line0 9", "empty-object [Frame1] Line0 9"));
    EXPECT_THAT(inFrame("txtPic0=Hi,0,0,,8,0,0,0,0,0,\n"), ElementsAre("empty-object [Frame1] txtPic0 9"));
    EXPECT_THAT(inFrame("Ball0=0,0,\nBall1=0,0,\n"), IsEmpty()) << "two of them count";
    EXPECT_THAT(inFrame("Triangle0=255,0,0,\n"), IsEmpty());
}

TEST(ListCheck, PathsThatBeginAtTheOriginCountAsAbsent) {
    EXPECT_THAT(inFrame("off0curve=0,0,5,5,\noff1curve=1,2,3,4,\n"),
                ElementsAre("empty-object [Frame1] off0curve 9"));
}

TEST(ListCheck, CharactersThatTheCodePageLacksAreTold) {
    EXPECT_THAT(inFrame("txtPic0=A\x81,1,2,Arial,10,0,1,0,0,0,\n"),
                ElementsAre("lost-character [Frame1] txtPic0 9"));
}

} // namespace
} // namespace zeltrona::zpf
