#include "document/play_file.h"
#include "tests/document/play_folder.h"

#include <gtest/gtest.h>

using namespace zeltrona::document;
using zeltrona::tests::PlayFolder;

namespace {

TEST(PlayFile, WritesAndReadsAKey) {
    const PlayFolder folder;
    PlayFile play(folder.path());
    EXPECT_TRUE(play.writeString("Config", "court", "3").ok());
    EXPECT_EQ(folder.get(), "[Config]\r\ncourt=3\r\n");
    EXPECT_EQ(play.readInt("config", "COURT", 0), 3);
    EXPECT_EQ(folder.othersThan(), 0U);
}

TEST(PlayFile, SeesAChangeByAnotherProgramAtTheNextRead) {
    const PlayFolder folder;
    PlayFile play(folder.put("[A]\r\nk=1\r\n"));
    EXPECT_EQ(play.readWhole("A", "k"), "1");
    folder.put("[A]\r\nk=2\r\n");
    EXPECT_EQ(play.readWhole("A", "k"), "2");
    EXPECT_TRUE(play.writeString("A", "k", "3").ok());
    folder.put("[A]\r\nk=4\r\n");
    EXPECT_EQ(play.readWhole("A", "k"), "4");
}

TEST(WriteBatch, IsOneReplacementThatReadsSeeAtOnce) {
    const PlayFolder folder;
    PlayFile play(folder.put("[A]\r\nk=1\r\n"));
    WriteBatch batch(play);
    EXPECT_TRUE(play.writeString("A", "k", "2").ok());
    EXPECT_EQ(play.readWhole("A", "k"), "2");
    EXPECT_EQ(folder.get(), "[A]\r\nk=1\r\n");
    EXPECT_TRUE(batch.commit().ok());
    EXPECT_EQ(folder.get(), "[A]\r\nk=2\r\n");
}

TEST(WriteBatch, WithoutCommitTakesItsWritesBack) {
    const PlayFolder folder;
    PlayFile play(folder.put("[A]\r\nk=1\r\n"));
    {
        const WriteBatch batch(play);
        EXPECT_TRUE(play.writeString("A", "k", "2").ok());
        EXPECT_TRUE(play.writeString("B", "k", "2").ok());
        EXPECT_EQ(play.readWhole("B", "k"), "2");
    }
    EXPECT_EQ(play.readWhole("A", "k"), "1");
    EXPECT_FALSE(play.hasKey("B", "k"));
    EXPECT_EQ(folder.get(), "[A]\r\nk=1\r\n");
}

} // namespace
