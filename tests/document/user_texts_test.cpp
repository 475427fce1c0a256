#include "document/user_texts.h"
#include "tests/document/temporary_play.h"

#include <gtest/gtest.h>

namespace zeltrona::document {

namespace {

using tests::TemporaryPlay;

TEST(UserTexts, ABreakOfTheDescriptionIsOneByte174) {
    TemporaryPlay play("[Config]\ncourt=1\n");
    EXPECT_TRUE(writeTitle(play.file, "Horns set", "First option\r\nSecond option").ok());
    EXPECT_TRUE(play.holds("[Config]\ncourt=1\ntxtTitle=Horns set\ntxtHead=First option\xAESecond option\n"));
    EXPECT_EQ(withLineBreaks(readHead(play.file)), "First option\r\nSecond option");
}

TEST(UserTexts, BreaksAtTheEndsAndInARowStay) {
    EXPECT_EQ(withBreakMarks("\r\na\r\n\r\n"), "\xAE"
                                               "a\xAE\xAE");
    EXPECT_EQ(withLineBreaks("\xAE"
                             "a\xAE\xAE"),
              "\r\na\r\n\r\n");
}

TEST(UserTexts, ALineEndAloneBecomesABlank) {
    EXPECT_EQ(withBreakMarks("a\rb\nc\n\rd"), "a b c  d");
    TemporaryPlay play;
    writeTitle(play.file, "a\r\nb", "");
    writeNote(play.file, 1, "c\r\nd\ne");
    EXPECT_TRUE(play.holds("[Config]\ntxtTitle=a b\ntxtHead=\nNotes1=c d e\n"));
}

TEST(UserTexts, TitleAndDescriptionAreOneReplacement) {
    TemporaryPlay play;
    int replacements = 0;
    play.file.setWriteObserver([&](const WriteResult&) { ++replacements; });
    writeTitle(play.file, "a", "b");
    EXPECT_EQ(replacements, 1);
}

TEST(UserTexts, TextsInQuotationMarksReadBackAsTyped) {
    TemporaryPlay play;
    writeTitle(play.file, "\"Horns\"", "'a'\r\n'b'");
    writeNote(play.file, 2, "''");
    EXPECT_EQ(readTitle(play.file), "\"Horns\"");
    EXPECT_EQ(withLineBreaks(readHead(play.file)), "'a'\r\n'b'");
    EXPECT_EQ(readNote(play.file, 2), "''");
}

TEST(UserTexts, ReadsAreCutAndTheFileKeepsTheWhole) {
    const std::string text(600, 't');
    const std::string lines = "[Config]\ntxtTitle=" + text + "\ntxtHead=" + text + "\nNotes1=" + text + "\n";
    const TemporaryPlay play(lines);
    EXPECT_EQ(readTitle(play.file), text.substr(0, 253));
    EXPECT_EQ(readHead(play.file), text.substr(0, 253));
    EXPECT_EQ(readNote(play.file, 1), text.substr(0, 498));
    EXPECT_EQ(readTitle(play.file, TextBuffer::Note), text.substr(0, 498));
    EXPECT_EQ(readHead(play.file, TextBuffer::Note), text.substr(0, 498));
    EXPECT_TRUE(play.holds(lines));
}

TEST(UserTexts, AbsentTextsAreEmpty) {
    const TemporaryPlay play("[Frame1]\nNotes1=not here\n");
    EXPECT_EQ(readTitle(play.file), "");
    EXPECT_EQ(readHead(play.file), "");
    EXPECT_EQ(readNote(play.file, 1), "");
}

TEST(UserTexts, KeysAreReadWhateverTheirCase) {
    const TemporaryPlay play("[CONFIG]\ntxttitle=a\ntxthead=b\nnotes7=c\n");
    EXPECT_EQ(readTitle(play.file), "a");
    EXPECT_EQ(readHead(play.file), "b");
    EXPECT_EQ(readNote(play.file, 7), "c");
}

TEST(PlayHeader, IsSixLinesAheadOfAnySection) {
    const tests::PlayFolder folder;
    PlayFile play(folder.path());
    EXPECT_TRUE(writePlayHeader(play).ok());
    EXPECT_EQ(folder.get(),
              "       Zeltrona        \r\n  www.zeltrona.example   \r\n ZQ  Script  Generator  \r\n"
              "\r\n========================\r\n\r\n");
}

TEST(PlayHeader, RemovesAllContentOfAnOldPlay) {
    TemporaryPlay play("[Config]\ncourt=1\n[Frame1]\nframe=1\n");
    EXPECT_TRUE(writePlayHeader(play.file).ok());
    EXPECT_FALSE(play.file.hasKey("Config", "court"));
    EXPECT_FALSE(play.file.hasKey("Frame1", "frame"));
    play.file.writeString("Config", "court", "2");
    EXPECT_EQ(play.folder.get().substr(play.folder.get().find("=\r\n\r\n")),
              "=\r\n\r\n[Config]\r\ncourt=2\r\n");
}

} // namespace

} // namespace zeltrona::document
