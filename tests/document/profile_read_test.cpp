#include "document/play_file.h"
#include "document/profile_value.h"
#include "document/text_buffers.h"
#include "tests/document/play_folder.h"

#include <gtest/gtest.h>
#include <limits>

using namespace zeltrona::document;
using zeltrona::tests::PlayFolder;

namespace {

class ProfileRead : public testing::Test {
protected:
    // The string read of one value.
    std::string text(const std::string& value, std::string_view fallback = "none", std::size_t size = 100) {
        return PlayFile(m_folder.put("[A]\r\nx=" + value + "\r\n")).readString("A", "x", fallback, size);
    }
    std::int32_t number(const std::string& value, std::int32_t fallback = -77) {
        return PlayFile(m_folder.put("[A]\r\nx=" + value + "\r\n")).readInt("A", "x", fallback);
    }
    PlayFolder m_folder;
};

TEST_F(ProfileRead, AnOuterPairOfEqualMarksIsDropped) {
    EXPECT_EQ(text("\"abc\""), "abc");
    EXPECT_EQ(text("'abc'"), "abc");
    EXPECT_EQ(text("\"\""), "");
    EXPECT_EQ(text("  \"abc\"  "), "abc");
}

TEST_F(ProfileRead, OnlyOnePairIsDropped) {
    EXPECT_EQ(text("\"\"abc\"\""), "\"abc\"");
    EXPECT_EQ(text("\"'abc'\""), "'abc'");
}

TEST_F(ProfileRead, BlanksInsideThePairStay) {
    EXPECT_EQ(text("\"  abc\t\""), "  abc\t");
}

TEST_F(ProfileRead, UnequalSingleAndInnerMarksStay) {
    EXPECT_EQ(text("\"abc'"), "\"abc'");
    EXPECT_EQ(text("\"abc"), "\"abc");
    EXPECT_EQ(text("abc\""), "abc\"");
    EXPECT_EQ(text("\""), "\"");
    EXPECT_EQ(text("a\"b\"c"), "a\"b\"c");
    EXPECT_EQ(text("\"a\" b"), "\"a\" b");
}

TEST_F(ProfileRead, WhatIsNotFoundGivesTheDefaultWithoutTrailingSpaces) {
    const PlayFile play(m_folder.put("[A]\r\nx=1\r\n"));
    EXPECT_EQ(play.readString("A", "y", "  Arial  ", 100), "  Arial");
    EXPECT_EQ(play.readString("B", "x", "Arial ", 100), "Arial");
    EXPECT_EQ(play.readString("A", "y", "Arial\t ", 100), "Arial\t");
    EXPECT_EQ(play.readString("A", "y", "'Arial' ", 100), "'Arial'");
    EXPECT_EQ(play.readString("A", "y", {}, 100), "");
    EXPECT_EQ(play.readWhole("A", "y", "Arial  "), "Arial");
    EXPECT_EQ(PlayFile(m_folder.path("missing.zpf")).readString("A", "x", "Arial ", 100), "Arial");
}

TEST_F(ProfileRead, AnEmptyValueIsFound) {
    EXPECT_EQ(text(""), "");
    EXPECT_TRUE(PlayFile(m_folder.path()).hasKey("A", "x"));
    EXPECT_FALSE(PlayFile(m_folder.path()).hasKey("A", "y"));
}

TEST_F(ProfileRead, TheResultIsCutToOneLessThanTheSize) {
    EXPECT_EQ(text("abcdef", "none", 4), "abc");
    EXPECT_EQ(text("abcdef", "none", 7), "abcdef");
    EXPECT_EQ(text("abcdef", "none", 6), "abcde");
    EXPECT_EQ(text("abcdef", "none", 1), "");
}

TEST_F(ProfileRead, SizeZeroGivesNothing) {
    EXPECT_EQ(text("abcdef", "none", 0), "");
    EXPECT_EQ(PlayFile(m_folder.path()).readString("A", "y", "none", 0), "");
}

TEST_F(ProfileRead, TheCutComesAfterTheMarksAreDropped) {
    EXPECT_EQ(text("\"abcdef\"", "none", 4), "abc");
    EXPECT_EQ(text("\"abc\"", "none", 4), "abc");
    EXPECT_EQ(text("\"ab", "none", 3), "\"a");
}

TEST_F(ProfileRead, TheDefaultIsCutToo) {
    EXPECT_EQ(PlayFile(m_folder.path("missing.zpf")).readString("A", "x", "Arial", 4), "Ari");
}

TEST_F(ProfileRead, BytesAbove127PassUnchanged) {
    EXPECT_EQ(text("\x8A\xE8\xAE\xFF"), "\x8A\xE8\xAE\xFF");
}

TEST_F(ProfileRead, TheBuffersOfTheProgramGiveTwoCharactersLess) {
    const std::string longValue(8000, 'a');
    const PlayFile play(m_folder.put("[A]\r\nx=" + longValue + "\r\nshort=1000,1000\r\nlabel=123456789\r\n"));
    EXPECT_EQ(readText(play, "A", "short", TextBuffer::Slot), "1000,100");
    EXPECT_EQ(readText(play, "A", "label", TextBuffer::Slot), "12345678");
    EXPECT_EQ(readText(play, "A", "x", TextBuffer::Text).size(), 253U);
    EXPECT_EQ(readText(play, "A", "x", TextBuffer::Note).size(), 498U);
    EXPECT_EQ(readText(play, "A", "x", TextBuffer::List).size(), 6998U);
    EXPECT_EQ(readText(play, "A", "y", TextBuffer::Slot, "twelve chars"), "twelve c");
    EXPECT_EQ(play.readWhole("A", "x"), longValue) << "the file keeps it whole";
    EXPECT_EQ(usableLength(TextBuffer::List), 6998U);
}

TEST_F(ProfileRead, AnIntegerEndsAtTheFirstOtherCharacter) {
    EXPECT_EQ(number("10,2"), 10);
    EXPECT_EQ(number("1.9"), 1);
    EXPECT_EQ(number("-1"), -1);
    EXPECT_EQ(number("+12"), 12);
    EXPECT_EQ(number("12abc"), 12);
    EXPECT_EQ(number("1e3"), 1);
    EXPECT_EQ(number("7 8"), 7);
}

TEST_F(ProfileRead, AnIntegerWithoutDigitsIsZeroAndNotTheDefault) {
    EXPECT_EQ(number("abc"), 0);
    EXPECT_EQ(number("-"), 0);
    EXPECT_EQ(number("--5"), 0);
    EXPECT_EQ(number("+-5"), 0);
    EXPECT_EQ(number("0x"), 0);
    EXPECT_EQ(number(""), 0);
    EXPECT_EQ(number("NaN"), 0);
    EXPECT_EQ(number("infinity"), 0);
}

TEST_F(ProfileRead, AnAbsentIntegerIsTheDefault) {
    const PlayFile play(m_folder.put("[A]\r\nx=1\r\n"));
    EXPECT_EQ(play.readInt("A", "y", -1), -1);
    EXPECT_EQ(play.readInt("B", "x", 238), 238);
    EXPECT_EQ(PlayFile(m_folder.path("missing.zpf")).readInt("A", "x", 5), 5);
}

TEST_F(ProfileRead, AnIntegerIsDecimalAlsoWithLeadingZeros) {
    EXPECT_EQ(number("010"), 10);
    EXPECT_EQ(number("-0010"), -10);
    EXPECT_EQ(number("089"), 89);
}

TEST_F(ProfileRead, PrefixesBehindTheSignSetTheBase) {
    EXPECT_EQ(number("0x1F"), 31);
    EXPECT_EQ(number("0xfFg"), 255);
    EXPECT_EQ(number("-0x10"), -16);
    EXPECT_EQ(number("+0o17"), 15);
    EXPECT_EQ(number("0o18"), 1);
    EXPECT_EQ(number("0b1012"), 5);
    EXPECT_EQ(number("-0b11"), -3);
}

TEST_F(ProfileRead, PrefixesCountInLowerCaseOnly) {
    EXPECT_EQ(number("0X1F"), 0);
    EXPECT_EQ(number("0O17"), 0);
    EXPECT_EQ(number("0B11"), 0);
    EXPECT_EQ(number("x1F"), 0);
    EXPECT_EQ(number("0x-5"), 0);
}

TEST_F(ProfileRead, AnIntegerIsTakenModulo32Bits) {
    EXPECT_EQ(number("2147483647"), 2147483647);
    EXPECT_EQ(number("2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(number("4294967295"), -1);
    EXPECT_EQ(number("4294967296"), 0);
    EXPECT_EQ(number("-4294967295"), 1);
    EXPECT_EQ(number("-2147483649"), 2147483647);
    EXPECT_EQ(number("1" + std::string(50, '0') + "7"), 7 + wholeNumber("1" + std::string(51, '0')));
    EXPECT_EQ(number("0xFFFFFFFFF"), -1);
}

TEST_F(ProfileRead, MarksAroundAnIntegerAreDropped) {
    EXPECT_EQ(number("\"12\""), 12);
    EXPECT_EQ(number("'-3'"), -3);
    EXPECT_EQ(number("\" 12\""), 0) << "a blank is no digit";
}

TEST_F(ProfileRead, NeverChangesTheFile) {
    const std::string bytes = "junk\n[A]\nx=1";
    const PlayFile play(m_folder.put(bytes));
    const auto before = std::filesystem::last_write_time(m_folder.path());
    EXPECT_EQ(play.readString("A", "x", "", 10), "1");
    EXPECT_EQ(play.readString("A", "y", "d", 10), "d");
    EXPECT_EQ(play.readInt("B", "y", 4), 4);
    EXPECT_EQ(m_folder.get(), bytes);
    EXPECT_EQ(std::filesystem::last_write_time(m_folder.path()), before);
    const PlayFile missing(m_folder.path("missing.zpf"));
    EXPECT_EQ(missing.readWhole("A", "x"), "");
    EXPECT_FALSE(std::filesystem::exists(m_folder.path("missing.zpf")));
}

TEST(GuardMarks, PutsATextBetweenMarksInsideOneMorePair) {
    EXPECT_EQ(guardMarks("\"Horns\""), "\"\"Horns\"\"");
    EXPECT_EQ(guardMarks("'Horns'"), "''Horns''");
    EXPECT_EQ(guardMarks("\"\""), "\"\"\"\"");
}

TEST(GuardMarks, LeavesAnyOtherText) {
    for (const char* text : {"", "Horns", "\"", "'", "\"Horns", "Horns'", "\"Horns'", " 'Horns'"}) {
        EXPECT_EQ(guardMarks(text), text);
    }
}

TEST_F(ProfileRead, AGuardedTextReadsBackAsItWasTyped) {
    PlayFile play(m_folder.path("guarded.zpf"));
    for (const std::string text : {"\"Horns\"", "'x'", "\"\"", "''''", "\"", "plain", "\"a' b\""}) {
        EXPECT_TRUE(play.writeText("Config", "txtTitle", text).ok());
        EXPECT_EQ(play.readString("Config", "txttitle", "", 254), text);
    }
}

} // namespace
