#include "document/sequence_rewrite.h"
#include "tests/document/temporary_play.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace zeltrona::document {

namespace {

using tests::crlf;
using tests::TemporaryPlay;

/// The lines behind a rewrite after the deletion of frame 2.
std::string rewritten(std::string_view lines) {
    return closeFrameGap(crlf(lines), 2);
}

TEST(CloseFrameGap, LowersHeadersNumbersAndNotesBehindTheGap) {
    EXPECT_EQ(rewritten("[Config]\nNotes1=a\nNotes3=c\nNotes4=d\n"
                        "[Frame1]\nframe=1\n[Frame3]\nframe=3\noff0=10,10\n[Frame4]\nframe=4\n"),
              crlf("[Config]\nNotes1=a\nNotes2=c\nNotes3=d\n"
                   "[Frame1]\nframe=1\n[Frame2]\nframe=2\noff0=10,10\n[Frame3]\nframe=3\n"));
}

TEST(CloseFrameGap, CopiesOtherLinesUnchanged) {
    const char* others = "; comment\n\n  frame=3\nframe=3 \nFrame=3\nframe = 3\nframe=33\n[frame4]\n"
                         "[Frame4] \n [Frame4]\n[Frame04]\n[Frame5]\nframe=5\nnotes3=x\n Notes3=x\n"
                         "Notes=x\nNotesx=3\nNotes3x=y\nNotes3\n";
    EXPECT_EQ(rewritten("[Frame3]\n" + std::string(others)), crlf("[Frame2]\n" + std::string(others)));
}

TEST(CloseFrameGap, RenamesNoFrameAheadOfTheFirstHeaderBehindTheGap) {
    EXPECT_EQ(rewritten("frame=3\n[Frame4]\nframe=4\n[Frame3]\nframe=3\n"),
              crlf("frame=3\n[Frame4]\nframe=4\n[Frame2]\nframe=2\n"));
}

TEST(CloseFrameGap, FramesAreRenamedOnlyInRisingOrder) {
    EXPECT_EQ(rewritten("[Frame3]\nframe=3\n[Frame5]\nframe=5\n[Frame4]\nframe=4\n"),
              crlf("[Frame2]\nframe=2\n[Frame5]\nframe=5\n[Frame3]\nframe=3\n"));
}

TEST(CloseFrameGap, ANoteThatBreaksTheOrderKeepsItsNumber) {
    EXPECT_EQ(rewritten("Notes4=d\nNotes3=c\nNotes5=e\nNotes4=f\n"),
              crlf("Notes4=d\nNotes2=c\nNotes5=e\nNotes3=f\n"));
}

TEST(CloseFrameGap, ANoteBeyondAGapKeepsItsNumber) {
    EXPECT_EQ(rewritten("Notes3=c\nNotes5=e\n"), crlf("Notes2=c\nNotes5=e\n"));
    EXPECT_EQ(rewritten("Notes4=d\n"), crlf("Notes4=d\n"));
}

TEST(CloseFrameGap, ANoteKeepsWhatStandsBehindItsFirstEqualsSign) {
    EXPECT_EQ(rewritten("Notes3= a = b \nNotes4=\n"), crlf("Notes2= a = b \nNotes3=\n"));
}

TEST(CloseFrameGap, NotesAreRenamedBehindTheFramesToo) {
    EXPECT_EQ(rewritten("[Frame3]\nframe=3\n[Config]\nNotes3=c\n"),
              crlf("[Frame2]\nframe=2\n[Config]\nNotes2=c\n"));
}

TEST(CloseFrameGap, NumbersOfSeveralDigitsFollow) {
    EXPECT_EQ(closeFrameGap(crlf("[Frame10]\nframe=10\n[Frame11]\nframe=11\n"), 9),
              crlf("[Frame9]\nframe=9\n[Frame10]\nframe=10\n"));
}

TEST(CloseFrameGap, EveryFrameBehindFollows) {
    std::string before = "[Frame1]\r\nframe=1\r\n";
    std::string after = before;
    for (int i = 3; i <= 1100; ++i) {
        const std::string number = std::to_string(i);
        const std::string lower = std::to_string(i - 1);
        before += "Notes" + number + "=n\r\n[Frame" + number + "]\r\nframe=" + number + "\r\nBall0=1,2,\r\n";
        after += "Notes" + lower + "=n\r\n[Frame" + lower + "]\r\nframe=" + lower + "\r\nBall0=1,2,\r\n";
    }
    EXPECT_EQ(closeFrameGap(before, 2), after);
}

TEST(CloseFrameGap, NumbersBelowOneAreInNoSequence) {
    for (const std::int16_t deleted : {std::int16_t{0}, std::int16_t{-10}}) {
        const std::string play = crlf("[Frame1]\nframe=1\n[Frame-9]\nframe=-9\nNotes-9=\nNotes1=\n");
        EXPECT_EQ(closeFrameGap(play, deleted), play);
    }
}

TEST(CloseFrameGap, EachLineKeepsItsOwnEnd) {
    EXPECT_EQ(closeFrameGap("a\n[Frame3]\nframe=3\r\nNotes3=x\rb\r\r\n", 2),
              "a\n[Frame2]\nframe=2\r\nNotes2=x\rb\r\r\n");
}

TEST(CloseFrameGap, ALastLineWithoutAnEndGetsOne) {
    EXPECT_EQ(closeFrameGap("[Frame3]\r\nframe=3", 2), "[Frame2]\r\nframe=2\r\n");
    EXPECT_EQ(closeFrameGap("", 2), "");
}

TEST(CloseFrameGap, KeepsZeroBytes) {
    const std::string line("a\0b\r\n", 5);
    EXPECT_EQ(closeFrameGap(line + "[Frame3]\r\n" + line, 2), line + "[Frame2]\r\n" + line);
}

TEST(TemporaryCopy, GoesThroughTheProgramFolderAndLeavesNothingThere) {
    TemporaryPlay play("old\n");
    const tests::PlayFolder program;
    EXPECT_TRUE(replaceThroughTemporary(play.file, "new\r\n", program.path("")).ok());
    EXPECT_TRUE(play.holds("new\n"));
    EXPECT_EQ(program.othersThan(), 0U);
    EXPECT_EQ(play.folder.othersThan(), 0U);
}

TEST(TemporaryCopy, GoesBesideThePlayWhereTheProgramFolderCannotBeWritten) {
    for (const char* program : {"/no/such/folder", "/proc", ""}) {
        TemporaryPlay play("old\n");
        EXPECT_TRUE(replaceThroughTemporary(play.file, "new\r\n", program).ok()) << program;
        EXPECT_TRUE(play.holds("new\n"));
        EXPECT_EQ(play.folder.othersThan(), 0U);
    }
}

TEST(TemporaryCopy, OneLeftBehindByAnEarlierRunMakesWay) {
    TemporaryPlay play("old\n");
    const tests::PlayFolder program;
    program.put("left behind, and longer than what follows", kTemporaryName);
    EXPECT_TRUE(replaceThroughTemporary(play.file, "new\r\n", program.path("")).ok());
    EXPECT_TRUE(play.holds("new\n"));
    EXPECT_EQ(program.othersThan(), 0U);
}

TEST(TemporaryCopy, NeverWritesThroughALinkOfItsName) {
    TemporaryPlay play("old\n");
    const tests::PlayFolder program;
    program.put("precious", "other.txt");
    std::filesystem::create_symlink(program.path("other.txt"), program.path(kTemporaryName));
    EXPECT_TRUE(replaceThroughTemporary(play.file, "new\r\n", program.path("")).ok());
    EXPECT_TRUE(play.holds("new\n"));
    EXPECT_EQ(program.get("other.txt"), "precious");
}

TEST(TemporaryCopy, APlayOfTheTemporaryNameIsNotLost) {
    const tests::PlayFolder folder;
    PlayFile play(folder.put("old\r\n", kTemporaryName));
    EXPECT_TRUE(replaceThroughTemporary(play, "new\r\n", folder.path("")).ok());
    EXPECT_EQ(folder.get(kTemporaryName), "new\r\n");
}

TEST(TemporaryCopy, WithoutAPlaceItFailsAndLeavesThePlay) {
    TemporaryPlay play("old\n");
    std::filesystem::create_directories(play.folder.path(kTemporaryName) + "/inside");
    EXPECT_FALSE(replaceThroughTemporary(play.file, "new\r\n", "/no/such/folder").ok());
    EXPECT_TRUE(play.holds("old\n"));
    EXPECT_TRUE(std::filesystem::exists(play.folder.path(kTemporaryName) + "/inside"));
}

} // namespace

} // namespace zeltrona::document
