#include "document/play_text.h"

#include <gtest/gtest.h>
#include <string>

using zeltrona::document::PlayText;

namespace {

std::string read(std::string bytes, std::string_view section, std::string_view key) {
    return std::string(PlayText(std::move(bytes)).value(section, key).value_or("(absent)"));
}

TEST(PlayTextLines, EndAtCrLfOrLfOrCr) {
    for (const std::string end : {"\r\n", "\n", "\r"}) {
        const std::string text = "[A]" + end + "x=1" + end + end + "y=2" + end + "[B]" + end + "z=3" + end;
        EXPECT_EQ(read(text, "A", "x"), "1");
        EXPECT_EQ(read(text, "A", "y"), "2");
        EXPECT_EQ(read(text, "B", "z"), "3");
    }
    EXPECT_EQ(read("[A]\rx=1\ny=2\r\nz=3\n\rw=4", "A", "x"), "1");
    EXPECT_EQ(read("[A]\rx=1\ny=2\r\nz=3\n\rw=4", "A", "y"), "2");
    EXPECT_EQ(read("[A]\rx=1\ny=2\r\nz=3\n\rw=4", "A", "z"), "3");
}

TEST(PlayTextLines, TheLastCountsWithoutAnEnd) {
    EXPECT_EQ(read("[A]\r\nx=1", "A", "x"), "1");
    EXPECT_EQ(read("x\r\n[A]", "A", "x"), "(absent)");
    EXPECT_EQ(read("[A]\r\nx=", "A", "x"), "");
}

TEST(PlayTextLines, LeadingSpaceTabAndVerticalTabAreIgnored) {
    EXPECT_EQ(read(" \t\v[A]\r\n\v\t x=1\r\n", "A", "x"), "1");
}

TEST(PlayTextLines, OtherWhiteSpaceIsNoBlank) {
    EXPECT_EQ(read("\f[A]\r\nx=1\r\n", "A", "x"), "(absent)");
    EXPECT_EQ(read("[A]\r\n\fx=1\r\n", "A", "x"), "(absent)");
    EXPECT_EQ(read("[A]\r\n\fx=1\r\n", "A", "\fx"), "1");
    EXPECT_EQ(read("[A]\r\nx=\f1\f\r\n", "A", "x"), "\f1\f");
    EXPECT_EQ(read("[A]\r\nx=\xA0"
                   "1\r\n",
                   "A", "x"),
              "\xA0"
              "1");
}

TEST(PlayTextLines, ASemicolonInFrontMakesAComment) {
    EXPECT_EQ(read("[A]\r\n;x=1\r\n", "A", "x"), "(absent)");
    EXPECT_EQ(read("[A]\r\n  ;x=1\r\n", "A", ";x"), "(absent)");
    EXPECT_EQ(read(";[A]\r\nx=1\r\n", "A", "x"), "(absent)");
}

TEST(PlayTextLines, ASemicolonElsewhereIsAnOrdinaryCharacter) {
    EXPECT_EQ(read("[A]\r\nx=1;2 ;3\r\n", "A", "x"), "1;2 ;3");
    EXPECT_EQ(read("[A]\r\nx;y=1\r\n", "A", "x;y"), "1");
    EXPECT_EQ(read("[A;b]\r\nx=1\r\n", "A;b", "x"), "1");
    EXPECT_EQ(read("[A]\r\n#x=1\r\n", "A", "#x"), "1");
}

TEST(PlayTextLines, ALineWithoutEqualsIsNoKey) {
    EXPECT_EQ(read("[A]\r\nx\r\n", "A", "x"), "(absent)");
    EXPECT_EQ(read("[A]\r\nx\r\nx=1\r\n", "A", "x"), "1");
}

TEST(PlayTextLines, AHeaderRunsToTheFirstClosingBracket) {
    EXPECT_EQ(read("[A]B]\r\nx=1\r\n", "A", "x"), "1");
    EXPECT_EQ(read("[A] ; note\r\nx=1\r\n", "A", "x"), "1");
    EXPECT_EQ(read("[A]y=2\r\nx=1\r\n", "A", "y"), "(absent)");
}

TEST(PlayTextLines, AHeaderWithoutClosingBracketRunsToTheLineEnd) {
    EXPECT_EQ(read("[A b\r\nx=1\r\n", "A b", "x"), "1");
    EXPECT_EQ(read("[A\rx=1", "A", "x"), "1");
    EXPECT_EQ(read("[A\n]\nx=1", "A", "x"), "1");
}

TEST(PlayTextLines, BlanksAtTheEndsOfAHeaderNameGo) {
    EXPECT_EQ(read("[ \tA b\v ]\r\nx=1\r\n", "A b", "x"), "1");
    EXPECT_EQ(read("[   \r\nx=1\r\n", "", "x"), "1");
}

TEST(PlayTextLines, AnOpeningBracketMayStandInsideAName) {
    EXPECT_EQ(read("[A[b]\r\nx=1\r\n", "A[b", "x"), "1");
    EXPECT_EQ(read("[[A]\r\nx=1\r\n", "[A", "x"), "1");
    EXPECT_EQ(read("[A\t[b]\r\nx=1\r\n", "A\t[b", "x"), "1");
}

TEST(PlayTextLines, ABracketBehindOtherTextIsNoHeader) {
    EXPECT_EQ(read("[A]\r\nx=[B]\r\ny=2\r\n", "A", "y"), "2");
    EXPECT_EQ(read("[A]\r\nx=[B]\r\ny=2\r\n", "A", "x"), "[B]");
    EXPECT_EQ(read("[A]\r\nx [B]\r\ny=2\r\n", "A", "y"), "2");
}

TEST(PlayTextLines, AKeyLineSplitsAtItsFirstEquals) {
    EXPECT_EQ(read("[A]\r\nx=1=2\r\n", "A", "x"), "1=2");
    EXPECT_EQ(read("[A]\r\nx==\r\n", "A", "x"), "=");
}

TEST(PlayTextLines, BlanksAtTheEndsOfNameAndValueGoAndInsideStay) {
    EXPECT_EQ(read("[A]\r\n \tx y \v= \t1  2 \v\r\n", "A", "x y"), "1  2");
}

TEST(PlayTextLines, NothingBehindEqualsIsAnEmptyValue) {
    EXPECT_EQ(read("[A]\r\nx=\r\n", "A", "x"), "");
    EXPECT_EQ(read("[A]\r\nx= \t\r\n", "A", "x"), "");
}

TEST(PlayTextLines, EqualsInFrontMakesAnEmptyName) {
    EXPECT_EQ(read("[A]\r\n=1\r\n", "A", ""), "1");
    EXPECT_EQ(read("[A]\r\n  =1\r\n", "A", " "), "1");
}

TEST(PlayTextLines, WhatStandsAheadOfTheFirstHeaderCannotBeRead) {
    EXPECT_EQ(read("x=1\r\n[A]\r\ny=2\r\n", "", "x"), "(absent)");
    EXPECT_EQ(read("x=1\r\n[A]\r\ny=2\r\n", "A", "x"), "(absent)");
    EXPECT_EQ(read("x=1\r\n", "", "x"), "(absent)");
}

TEST(PlayTextLines, ASectionEndsAtTheNextHeaderWhateverItsName) {
    EXPECT_EQ(read("[A]\r\nx=1\r\n[]\r\ny=2\r\n", "A", "y"), "(absent)");
    EXPECT_EQ(read("[A]\r\nx=1\r\n[A]\r\ny=2\r\n", "A", "y"), "(absent)");
    EXPECT_EQ(read("[A]\r\nx=1\r\n[\r\ny=2\r\n", "A", "y"), "(absent)");
}

TEST(PlayTextLines, ASectionMayBeEmpty) {
    EXPECT_EQ(read("[A]\r\n[B]\r\nx=1\r\n", "A", "x"), "(absent)");
    EXPECT_EQ(read("[A]\r\n[B]\r\nx=1\r\n", "B", "x"), "1");
    EXPECT_EQ(read("[A]", "A", "x"), "(absent)");
}

TEST(PlayTextLines, ZeroBytesEndNothing) {
    const std::string text("[A]\r\nx=1\0"
                           "2\r\n\0y=3\r\nz\0=4\r\n[B\0]\r\nv=5\r\n",
                           35);
    EXPECT_EQ(read(text, "A", "x"), std::string("1\0"
                                                "2",
                                                3));
    EXPECT_EQ(read(text, "A", std::string_view("\0y", 2)), "3");
    EXPECT_EQ(read(text, "A", std::string_view("z\0", 2)), "4");
    EXPECT_EQ(read(text, std::string_view("B\0", 2), "v"), "5");
    EXPECT_EQ(PlayText(text).bytes(), text);
}

TEST(PlayTextLines, TheFirstKeyLineIsFoundLikeAnyOther) {
    EXPECT_EQ(read("[A]\r\n; c\r\n\r\nno key\r\n X = 1 \r\nx=2\r\n", "A", "x"), "1");
    EXPECT_EQ(read("[A]\r\ny=1\r\nx=2\r\n", "A", "x"), "2");
    EXPECT_EQ(read("[A]\r\n;x=1\r\n", "A", "x"), "(absent)");
    EXPECT_EQ(read("[A]\r\n=1\r\n", "A", ""), "1");
    EXPECT_EQ(read("[A]\r\n[B]\r\nx=1\r\n", "A", "x"), "(absent)");
}

TEST(PlayTextLines, AByteOrderMarkBelongsToTheFirstLine) {
    EXPECT_EQ(read("\xEF\xBB\xBF[A]\r\nx=1\r\n[B]\r\ny=2\r\n", "A", "x"), "(absent)");
    EXPECT_EQ(read("\xEF\xBB\xBF[A]\r\nx=1\r\n[B]\r\ny=2\r\n", "B", "y"), "2");
}

TEST(PlayTextNames, MatchWithoutRegardToCase) {
    EXPECT_EQ(read("[Config]\r\nbodyoff0=1\r\n", "cONFIG", "bodyOff0"), "1");
    EXPECT_EQ(read("[@[`{]\r\n@Zz[{=1\r\n", "@[`{", "@zZ[{"), "1");
    EXPECT_EQ(read("[A]\r\n@=1\r\n", "A", "`"), "(absent)") << "neighbours of the letters are no letters";
    EXPECT_EQ(read("[A]\r\n[x=1\r\n", "A", "{x"), "(absent)");
}

TEST(PlayTextNames, BytesAbove127CompareAsTheyAre) {
    EXPECT_EQ(read("[\xC8]\r\n\x8A"
                   "x=1\r\n",
                   "\xC8", "\x8AX"),
              "1");
    EXPECT_EQ(read("[\xC8]\r\n\x8A"
                   "x=1\r\n",
                   "\xE8",
                   "\x8A"
                   "x"),
              "(absent)");
    EXPECT_EQ(read("[A]\r\n\xC1"
                   "x=1\r\n",
                   "A",
                   "\xE1"
                   "x"),
              "(absent)");
}

TEST(PlayTextNames, DoNotMatchInPart) {
    EXPECT_EQ(read("[Frame10]\r\noff10=1\r\n", "Frame1", "off10"), "(absent)");
    EXPECT_EQ(read("[Frame1]\r\noff10=1\r\n", "Frame1", "off1"), "(absent)");
    EXPECT_EQ(read("[Frame1]\r\noff1=1\r\n", "Frame1", "off10"), "(absent)");
}

TEST(PlayTextNames, QuotationMarksArePartOfThem) {
    EXPECT_EQ(read("[\"A\"]\r\n\"x\"=1\r\n", "A", "x"), "(absent)");
    EXPECT_EQ(read("[\"A\"]\r\n\"x\"=1\r\n", "\"A\"", "\"x\""), "1");
}

TEST(PlayTextNames, SpacesAtTheEndsOfAnArgumentGoOtherWhiteSpaceStays) {
    EXPECT_EQ(read("[A]\r\nx=1\r\n", "  A ", " x  "), "1");
    EXPECT_EQ(read("[A]\r\nx=1\r\n", "\tA", "x"), "(absent)");
    EXPECT_EQ(read("[A]\r\nx=1\r\n", "A", "x\t"), "(absent)");
    EXPECT_EQ(read("[A]\r\nx=1\r\n", "A", "\vx"), "(absent)");
}

TEST(PlayTextNames, OnlyTheFirstSectionOfANameCounts) {
    EXPECT_EQ(read("[A]\r\nx=1\r\n[B]\r\n[a]\r\ny=2\r\nx=3\r\n", "A", "x"), "1");
    EXPECT_EQ(read("[A]\r\nx=1\r\n[B]\r\n[a]\r\ny=2\r\nx=3\r\n", "A", "y"), "(absent)");
    EXPECT_EQ(read("[A]\r\n[A]\r\n[A]\r\n[B]\r\ny=2\r\n[A]\r\n[C]\r\nz=3", "C", "z"), "3");
}

TEST(PlayTextNames, OnlyTheFirstKeyOfANameCounts) {
    EXPECT_EQ(read("[A]\r\nx=1\r\nX=2\r\n", "A", "x"), "1");
}

TEST(PlayTextNames, ManyLongOnesAreAllFound) {
    std::string text;
    for (int section = 0; section < 300; ++section) {
        text += "[Section number " + std::to_string(section) + "]\n";
        for (int key = 0; key < 40; ++key) {
            text += "a rather long key of number " + std::to_string(key) + "="
                    + std::to_string(section * 100 + key) + "\n";
        }
    }
    const PlayText play(text);
    for (int section = 0; section < 300; ++section) {
        for (int key = 0; key < 40; ++key) {
            ASSERT_EQ(play.value("SECTION number " + std::to_string(section),
                                 "A RATHER long key of number " + std::to_string(key)),
                      std::to_string(section * 100 + key));
        }
    }
}

} // namespace
