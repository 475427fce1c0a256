#include "output/wrap_text.h"

#include <gtest/gtest.h>

namespace zeltrona::output {
namespace {

using Lines = std::vector<std::string>;

/// Every byte that begins a letter is one unit wide.
double lettersOf(std::string_view text) {
    double width = 0;
    for (const char byte : text) {
        width += (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U ? 0 : 1;
    }
    return width;
}

Lines wrap(double width, std::string_view text) {
    return wrapText(lettersOf, width, text);
}

TEST(WrapText, EmptyTextGivesNoLines) {
    EXPECT_EQ(wrap(10, ""), Lines{});
}

TEST(WrapText, TextThatFitsIsOneLine) {
    EXPECT_EQ(wrap(10, "pick roll"), Lines{"pick roll"});
}

TEST(WrapText, LineMustMeasureLessThanTheWidth) {
    EXPECT_EQ(wrap(9, "pick roll"), (Lines{"pick", "roll"}));
}

TEST(WrapText, BlankAtTheCutIsDropped) {
    EXPECT_EQ(wrap(6, "a bb ccc dddd"), (Lines{"a bb", "ccc", "dddd"}));
}

TEST(WrapText, BlanksInsideALineStay) {
    EXPECT_EQ(wrap(10, "a  b"), Lines{"a  b"});
    EXPECT_EQ(wrap(10, " a"), Lines{" a"});
}

TEST(WrapText, WordTooWideIsCutLetterByLetterAndItsRestGoesOn) {
    EXPECT_EQ(wrap(4, "abcdefgh i"), (Lines{"abc", "def", "gh", "i"}));
    EXPECT_EQ(wrap(6, "abcdefg hi"), (Lines{"abcde", "fg hi"}));
}

TEST(WrapText, WideWordBeginsOnALineOfItsOwn) {
    EXPECT_EQ(wrap(5, "a bcdefg"), (Lines{"a", "bcde", "fg"}));
}

TEST(WrapText, LettersOfSeveralBytesAreNotCutApart) {
    EXPECT_EQ(wrap(3, "\xC4\x8D\xC4\x8D\xC4\x8D"), (Lines{"\xC4\x8D\xC4\x8D", "\xC4\x8D"}));
}

TEST(WrapText, WidthOfNothingEndsWithALetterToALine) {
    EXPECT_EQ(wrap(0, "ab c"), (Lines{"a", "b", "c"}));
}

} // namespace
} // namespace zeltrona::output
