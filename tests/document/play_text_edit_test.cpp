#include "document/play_text.h"

#include <gtest/gtest.h>
#include <malloc.h>
#include <string>

using zeltrona::document::PlayText;

namespace {

std::string written(std::string bytes, std::string_view section, std::string_view key,
                    std::string_view value) {
    PlayText text(std::move(bytes));
    text.write(section, key, value);
    return text.bytes();
}

std::string withoutKey(std::string bytes, std::string_view section, std::string_view key) {
    PlayText text(std::move(bytes));
    text.deleteKey(section, key);
    return text.bytes();
}

std::string withoutSection(std::string bytes, std::string_view section) {
    PlayText text(std::move(bytes));
    text.deleteSection(section);
    return text.bytes();
}

TEST(PlayTextWrite, TheValueGoesInAsGiven) {
    EXPECT_EQ(written("[A]\r\n", "A", "x", "  a \"b\" "), "[A]\r\nx=  a \"b\" \r\n");
    EXPECT_EQ(written("[A]\r\nx=1\r\n", "A", "x", " 2 "), "[A]\r\nx= 2 \r\n");
    EXPECT_EQ(written("[A]\r\nx=1\r\n", "A", "x", "'2'"), "[A]\r\nx='2'\r\n");
    EXPECT_EQ(written("[A]\r\nx=1\r\n", "A", "x", "\xAE\x8A"), "[A]\r\nx=\xAE\x8A\r\n");
}

TEST(PlayTextWrite, LineEndsInAValueAreWrittenTooAndCutIt) {
    EXPECT_EQ(written("[A]\r\nx=1\r\n", "A", "x", "2\r\ny=3"), "[A]\r\nx=2\r\ny=3\r\n");
    PlayText text("[A]\r\nx=1\r\n");
    text.write("A", "x", "2\n[B]\ny=3");
    EXPECT_EQ(text.value("A", "x"), "2");
    EXPECT_EQ(text.value("B", "y"), "3");
}

TEST(PlayTextWrite, AValueIsReplacedWhereItStands) {
    EXPECT_EQ(written("[A]\r\nx=1\r\ny=2\r\nz=3\r\n", "A", "y", "22"), "[A]\r\nx=1\r\ny=22\r\nz=3\r\n");
}

TEST(PlayTextWrite, TheSpellingInTheFileStays) {
    EXPECT_EQ(written("[Frame1]\r\nangleOff0=90\r\n", "frame1", "angleoff0", "45"),
              "[Frame1]\r\nangleOff0=45\r\n");
}

TEST(PlayTextWrite, ARewrittenLineKeepsItsIndentAndLosesBlanksAroundEquals) {
    EXPECT_EQ(written("[A]\r\n \tx \t= 1 \r\ny = 2\r\n", "A", "x", "3"), "[A]\r\n \tx=3\r\ny = 2\r\n");
}

TEST(PlayTextWrite, ARewrittenLineKeepsItsLineEnd) {
    EXPECT_EQ(written("[A]\nx=1\ny=2\n", "A", "x", "3"), "[A]\nx=3\ny=2\n");
    EXPECT_EQ(written("[A]\rx=1\ry=2\r", "A", "x", "3"), "[A]\rx=3\ry=2\r");
}

TEST(PlayTextWrite, ARewrittenLastLineWithoutLineEndGetsOne) {
    EXPECT_EQ(written("[A]\nx=1", "A", "x", "3"), "[A]\nx=3\r\n");
}

TEST(PlayTextWrite, TheValueThatIsThereAlreadyLeavesTheText) {
    PlayText text("[A]\nx = 1 \ny='2'\nz=3");
    EXPECT_FALSE(text.write("a", "X", "1"));
    EXPECT_FALSE(text.write("A", "y", "'2'"));
    EXPECT_FALSE(text.write("A", "z", "3"));
    EXPECT_EQ(text.bytes(), "[A]\nx = 1 \ny='2'\nz=3");
    EXPECT_TRUE(text.write("A", "y", "2")) << "the marks are part of what stands in the file";
}

TEST(PlayTextWrite, OnlyTheFirstKeyOfANameIsReplaced) {
    EXPECT_EQ(written("[A]\r\nx=1\r\nX=2\r\n", "A", "X", "3"), "[A]\r\nx=3\r\nX=2\r\n");
    EXPECT_EQ(written("[A]\r\nx=1\r\n[A]\r\nx=2\r\ny=1\r\n", "A", "y", "3"),
              "[A]\r\nx=1\r\ny=3\r\n[A]\r\nx=2\r\ny=1\r\n");
}

TEST(PlayTextWrite, ANewKeyGoesBehindTheLastKeyLine) {
    EXPECT_EQ(written("[A]\r\nx=1\r\n\r\n; note\r\n\r\n[B]\r\n", "A", "y", "2"),
              "[A]\r\nx=1\r\ny=2\r\n\r\n; note\r\n\r\n[B]\r\n");
    EXPECT_EQ(written("[A]\r\nx=1\r\n; note\r\nX=2\r\njunk\r\n", "A", "y", "2"),
              "[A]\r\nx=1\r\n; note\r\nX=2\r\ny=2\r\njunk\r\n");
}

TEST(PlayTextWrite, ANewKeyOfASectionWithoutKeysGoesBehindTheHeader) {
    EXPECT_EQ(written("[A]\r\n\r\n; note\r\njunk\r\n[B]\r\n", "A", "y", "2"),
              "[A]\r\ny=2\r\n\r\n; note\r\njunk\r\n[B]\r\n");
}

TEST(PlayTextWrite, ANewLineBehindOneWithoutLineEndGivesItOne) {
    EXPECT_EQ(written("[A]\nx=1", "A", "y", "2"), "[A]\nx=1\r\ny=2\r\n");
    EXPECT_EQ(written("[A]", "A", "y", "2"), "[A]\r\ny=2\r\n");
    EXPECT_EQ(written("[A]\nx=1\n; note", "A", "y", "2"), "[A]\nx=1\ny=2\r\n; note");
}

TEST(PlayTextWrite, ANewSectionGoesToTheEndWithoutABlankLine) {
    EXPECT_EQ(written("[A]\r\nx=1\r\n", "B", "y", "2"), "[A]\r\nx=1\r\n[B]\r\ny=2\r\n");
    EXPECT_EQ(written("", "B", "y", "2"), "[B]\r\ny=2\r\n");
}

TEST(PlayTextWrite, ANewSectionBehindALastLineWithoutLineEndGivesItOne) {
    EXPECT_EQ(written("[A]\nx=1", "B", "y", "2"), "[A]\nx=1\r\n[B]\r\ny=2\r\n");
    EXPECT_EQ(written("header", "B", "y", "2"), "header\r\n[B]\r\ny=2\r\n");
    EXPECT_EQ(written("header\r", "B", "y", "2"), "header\r[B]\r\ny=2\r\n");
}

TEST(PlayTextWrite, KeysOfANewSectionKeepTheOrderOfTheirWrites) {
    PlayText text("head\r\n");
    text.write("Frame1", "frame", "1");
    text.write("Frame1", "off0", "10,2");
    text.write("Config", "Notes1", "");
    text.write("Frame1", "angleoff0", "90");
    EXPECT_EQ(text.bytes(),
              "head\r\n[Frame1]\r\nframe=1\r\noff0=10,2\r\nangleoff0=90\r\n[Config]\r\nNotes1=\r\n");
    EXPECT_EQ(text.value("frame1", "ANGLEOFF0"), "90");
    EXPECT_EQ(text.value("config", "notes1"), "");
}

TEST(PlayTextWrite, SpacesAtTheEndsOfTheArgumentsGo) {
    EXPECT_EQ(written("[A]\r\nx=1\r\n", " A ", "  x ", "2"), "[A]\r\nx=2\r\n");
    EXPECT_EQ(written("", " A ", "  x ", "2"), "[A]\r\nx=2\r\n");
    EXPECT_EQ(written("[A]\r\nx=1\r\n", "A", "\tx", "2"), "[A]\r\nx=1\r\n\tx=2\r\n");
}

TEST(PlayTextWrite, AKeyWithASemicolonInFrontAlwaysAddsALine) {
    EXPECT_EQ(written("[A]\r\nx=1\r\n;n=1\r\n", "A", ";n", "1"), "[A]\r\nx=1\r\n;n=1\r\n;n=1\r\n");
    PlayText text("[A]\r\nx=1\r\nlast\r\n");
    text.write("A", ";n", "1");
    text.write("A", ";n", "2");
    EXPECT_EQ(text.bytes(), "[A]\r\nx=1\r\n;n=2\r\n;n=1\r\nlast\r\n");
    text.write("A", "y", "3");
    EXPECT_EQ(text.bytes(), "[A]\r\nx=1\r\ny=3\r\n;n=2\r\n;n=1\r\nlast\r\n");
}

TEST(PlayTextWrite, NamesThatReadBackDifferentlyTakeEffectAsTheyRead) {
    PlayText text("[A]\r\n");
    text.write("A", "x=y", "1");
    EXPECT_EQ(text.value("A", "x"), "y=1");
    text.write("A", "[B", "2");
    EXPECT_EQ(text.bytes(), "[A]\r\nx=y=1\r\n[B=2\r\n");
    EXPECT_EQ(text.value("B=2", "x"), std::nullopt);
    text.write("C]D", "z", "3");
    EXPECT_EQ(text.value("C", "z"), "3");
}

TEST(PlayTextWrite, LeavesAllOtherBytes) {
    const std::string head = "  Zeltrona  \r\nkey=ahead\n\n\r";
    const std::string rest = "\r; note\n\t[ B ] tail\r\n  q  =  w \n\n\n[A]\nx=9\n\xFF\xFE"
                             "\x01=";
    EXPECT_EQ(written(head + "[A]\r x = 1 " + rest, "A", "x", "2"), head + "[A]\r x=2" + rest);
}

TEST(PlayTextWrite, ALongRowOfEditsReadsBack) {
    PlayText text("[A]\r\n");
    for (int i = 0; i < 500; ++i) {
        text.write("A", "key" + std::to_string(i % 50), std::to_string(i));
        text.tidy();
    }
    for (int i = 450; i < 500; ++i) {
        EXPECT_EQ(text.value("A", "key" + std::to_string(i % 50)), std::to_string(i));
    }
    EXPECT_TRUE(text.bytes().starts_with("[A]\r\nkey0=450\r\nkey1=451\r\n"));
}

TEST(PlayTextWrite, MemoryStaysFlatOverManyEdits) {
    PlayText text("[A]\r\nx=1\r\n");
    const auto editOften = [&text](int times) {
        for (int i = 0; i < times; ++i) {
            text.write("A", "x", std::string(100, static_cast<char>('a' + i % 20)));
            text.write("B", "y", std::to_string(i));
            text.tidy();
        }
    };
    editOften(2000);
    const std::size_t before = ::mallinfo2().uordblks;
    editOften(20'000);
    const std::size_t after = ::mallinfo2().uordblks;
    EXPECT_LT(after, before + 300'000);
}

TEST(PlayTextWrite, ACopyKeepsWhatItHeld) {
    PlayText text("[A]\r\nx=1\r\n");
    EXPECT_EQ(text.value("A", "x"), "1");
    const PlayText copy = text;
    text.write("A", "x", "2");
    text.write("A", "y", "3");
    text.write("B", "z", "4");
    text.deleteKey("A", "x");
    EXPECT_EQ(copy.bytes(), "[A]\r\nx=1\r\n");
    EXPECT_EQ(copy.value("A", "x"), "1");
    EXPECT_EQ(copy.value("B", "z"), std::nullopt);
}

TEST(PlayTextDelete, AKeysLineGoes) {
    EXPECT_EQ(withoutKey("[A]\r\nx=1\r\ny=2\r\n", "a", "X"), "[A]\r\ny=2\r\n");
    EXPECT_EQ(withoutKey("[A]\r\nx=1\r\ny=2", "A", "y"), "[A]\r\nx=1\r\n");
    EXPECT_EQ(withoutKey("[A]\r\nx=1\r\n; note\r\ny=2\r\n", "A", "x"), "[A]\r\n; note\r\ny=2\r\n");
}

TEST(PlayTextDelete, TheHeaderStaysWhenTheLastKeyGoes) {
    EXPECT_EQ(withoutKey("[A]\r\nx=1\r\n[B]\r\n", "A", "x"), "[A]\r\n[B]\r\n");
}

TEST(PlayTextDelete, OfSeveralKeysOfANameTheFirstGoesAndTheNextCounts) {
    PlayText text("[A]\r\nx=1\r\nX=2\r\n");
    EXPECT_TRUE(text.deleteKey("A", "x"));
    EXPECT_EQ(text.bytes(), "[A]\r\nX=2\r\n");
    EXPECT_EQ(text.value("A", "x"), "2");
}

TEST(PlayTextDelete, WorksOnKeysJustWritten) {
    PlayText text("[A]\r\nx=1\r\n; note\r\n");
    text.write("A", "y", "2");
    text.write("A", "x", "3");
    EXPECT_TRUE(text.deleteKey("A", "y"));
    EXPECT_EQ(text.bytes(), "[A]\r\nx=3\r\n; note\r\n");
    EXPECT_TRUE(text.deleteKey("A", " x "));
    EXPECT_EQ(text.bytes(), "[A]\r\n; note\r\n");
}

TEST(PlayTextDelete, ASectionGoesWithItsKeysAndItsCommentsStay) {
    EXPECT_EQ(withoutSection("[A]\r\nx=1\r\n; one\r\ny=2\r\n\t;two\n[B]\r\nz=3\r\n", "a"),
              "; one\r\n\t;two\n[B]\r\nz=3\r\n");
}

TEST(PlayTextDelete, BlankLinesAndLinesWithoutEqualsGoWithTheSection) {
    EXPECT_EQ(withoutSection("h\r\n[A]\r\n\r\nx=1\r\njunk\r\n \t\r\n[B]\r\n", "A"), "h\r\n[B]\r\n");
}

TEST(PlayTextDelete, SpacesAtTheEndsOfASectionArgumentGo) {
    EXPECT_EQ(withoutSection("[A]\r\nx=1\r\n", "  A "), "");
    EXPECT_EQ(withoutSection("[A]\r\nx=1\r\n", "\tA"), "[A]\r\nx=1\r\n");
}

TEST(PlayTextDelete, OfSeveralSectionsOfANameTheFirstGoesAndTheNextCounts) {
    PlayText text("[A]\r\nx=1\r\n[B]\r\n[A]\r\nx=2\r\n");
    EXPECT_TRUE(text.deleteSection("A"));
    EXPECT_EQ(text.bytes(), "[B]\r\n[A]\r\nx=2\r\n");
    EXPECT_EQ(text.value("A", "x"), "2");
}

TEST(PlayTextDelete, WhatIsAbsentChangesNothing) {
    PlayText text("[A]\nx=1\n;y=2\njunk");
    EXPECT_FALSE(text.deleteKey("A", "y"));
    EXPECT_FALSE(text.deleteKey("A", ";y"));
    EXPECT_FALSE(text.deleteKey("A", "junk"));
    EXPECT_FALSE(text.deleteKey("B", "x"));
    EXPECT_FALSE(text.deleteSection("B"));
    EXPECT_EQ(text.bytes(), "[A]\nx=1\n;y=2\njunk");
}

TEST(PlayTextDelete, AWriteBehindADeletionGoesToTheRightPlace) {
    PlayText text("[A]\r\nx=1\r\n[B]\r\ny=2\r\n");
    text.deleteSection("A");
    text.write("B", "z", "3");
    text.write("A", "x", "4");
    EXPECT_EQ(text.bytes(), "[B]\r\ny=2\r\nz=3\r\n[A]\r\nx=4\r\n");
}

} // namespace
