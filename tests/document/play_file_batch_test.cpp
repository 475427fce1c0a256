#include "document/play_file.h"
#include "tests/document/play_folder.h"

#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <vector>

using namespace zeltrona::document;
using zeltrona::tests::PlayFolder;

namespace {

ino_t inodeOf(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_ino : 0;
}

class PlayFileBatch : public testing::Test {
protected:
    PlayFolder m_folder;
    PlayFile m_play{m_folder.put("[A]\r\nk=1\r\n")};
};

TEST_F(PlayFileBatch, IsOneReplacementThatReadsSeeAtOnce) {
    WriteBatch batch(m_play);
    EXPECT_TRUE(m_play.writeString("A", "k", "2").ok());
    EXPECT_EQ(m_play.readWhole("A", "k"), "2");
    EXPECT_EQ(m_play.bytes(), "[A]\r\nk=2\r\n");
    EXPECT_EQ(m_folder.get(), "[A]\r\nk=1\r\n");
    EXPECT_TRUE(batch.commit().ok());
    EXPECT_EQ(m_folder.get(), "[A]\r\nk=2\r\n");
}

TEST_F(PlayFileBatch, GivesTheBytesOfTheSingleWritesInTheirOrder) {
    const auto write = [](PlayFile& play) {
        play.writeString("Frame1", "frame", "1");
        play.writeString("A", "new", "x");
        play.writeString("frame1", "off0", "10,2");
        play.deleteKey("A", "K");
        play.writeString("A", "k", "9");
        play.deleteSection("B");
        play.writeString("B", "z", "");
    };
    PlayFile single(m_folder.put("[A]\nk=1\n;c\n[B]\nq=1", "single.zpf"));
    write(single);
    PlayFile batched(m_folder.put("[A]\nk=1\n;c\n[B]\nq=1", "batched.zpf"));
    WriteBatch batch(batched);
    write(batched);
    EXPECT_TRUE(batch.commit().ok());
    EXPECT_EQ(m_folder.get("batched.zpf"), m_folder.get("single.zpf"));
    EXPECT_EQ(m_folder.get("batched.zpf"),
              "[A]\nnew=x\r\nk=9\r\n;c\n[Frame1]\r\nframe=1\r\noff0=10,2\r\n[B]\r\nz=\r\n");
}

TEST_F(PlayFileBatch, WithoutCommitTakesItsWritesBack) {
    {
        const WriteBatch batch(m_play);
        m_play.writeString("A", "k", "2");
        m_play.writeString("B", "k", "2");
        m_play.deleteKey("A", "k");
    }
    EXPECT_EQ(m_play.readWhole("A", "k"), "1");
    EXPECT_FALSE(m_play.hasKey("B", "k"));
    EXPECT_EQ(m_folder.get(), "[A]\r\nk=1\r\n");
    EXPECT_TRUE(m_play.writeString("C", "k", "3").ok());
    EXPECT_EQ(m_folder.get(), "[A]\r\nk=1\r\n[C]\r\nk=3\r\n") << "nothing of the batch comes back later";
}

TEST_F(PlayFileBatch, NestsAndOnlyTheOutermostReachesTheDisk) {
    WriteBatch outer(m_play);
    m_play.writeString("A", "k", "2");
    {
        WriteBatch inner(m_play);
        m_play.writeString("A", "j", "3");
        EXPECT_TRUE(inner.commit().ok());
        EXPECT_EQ(m_folder.get(), "[A]\r\nk=1\r\n");
    }
    EXPECT_TRUE(outer.commit().ok());
    EXPECT_EQ(m_folder.get(), "[A]\r\nk=2\r\nj=3\r\n");
}

TEST_F(PlayFileBatch, AnInnerOneWithoutCommitTakesOnlyItsOwnBack) {
    WriteBatch outer(m_play);
    m_play.writeString("A", "k", "2");
    {
        const WriteBatch inner(m_play);
        m_play.writeString("A", "j", "3");
    }
    EXPECT_EQ(m_play.readWhole("A", "k"), "2");
    EXPECT_FALSE(m_play.hasKey("A", "j"));
    EXPECT_TRUE(outer.commit().ok());
    EXPECT_EQ(m_folder.get(), "[A]\r\nk=2\r\n");
}

TEST_F(PlayFileBatch, AnOuterOneWithoutCommitTakesTheInnerBackToo) {
    {
        const WriteBatch outer(m_play);
        WriteBatch inner(m_play);
        m_play.writeString("A", "k", "2");
        EXPECT_TRUE(inner.commit().ok());
    }
    EXPECT_EQ(m_play.bytes(), "[A]\r\nk=1\r\n");
    EXPECT_EQ(m_folder.get(), "[A]\r\nk=1\r\n");
}

TEST_F(PlayFileBatch, ASecondCommitDoesNothing) {
    WriteBatch batch(m_play);
    m_play.writeString("A", "k", "2");
    EXPECT_TRUE(batch.commit().ok());
    m_play.writeString("A", "k", "3");
    EXPECT_TRUE(batch.commit().ok());
    EXPECT_EQ(m_folder.get(), "[A]\r\nk=3\r\n");
}

TEST_F(PlayFileBatch, ThatChangesNothingLeavesTheFileUntouched) {
    const ino_t before = inodeOf(m_folder.path());
    EXPECT_TRUE(m_play.writeString("A", "k", "1").ok());
    EXPECT_TRUE(m_play.deleteKey("A", "other").ok());
    EXPECT_TRUE(m_play.deleteSection("Other").ok());
    EXPECT_TRUE(m_play.replaceAll("[A]\r\nk=1\r\n").ok());
    WriteBatch batch(m_play);
    EXPECT_TRUE(batch.commit().ok());
    EXPECT_EQ(inodeOf(m_folder.path()), before);
    EXPECT_TRUE(m_play.writeString("A", "k", "2").ok());
    EXPECT_NE(inodeOf(m_folder.path()), before) << "a change is a new file";
}

TEST_F(PlayFileBatch, WhoseCommitFailsTakesItsWritesBack) {
    std::filesystem::create_directory(m_folder.path("gone"));
    const std::string path = m_folder.put("[A]\r\nk=1\r\n", "gone/play.zpf");
    PlayFile play(path);
    EXPECT_EQ(play.readWhole("A", "k"), "1");
    std::filesystem::rename(m_folder.path("gone"), m_folder.path("elsewhere"));
    WriteBatch batch(play);
    play.writeString("A", "k", "2");
    const WriteResult result = batch.commit();
    EXPECT_FALSE(result.ok());
    EXPECT_EQ(result.reason, "No such file or directory");
    std::filesystem::rename(m_folder.path("elsewhere"), m_folder.path("gone"));
    EXPECT_EQ(play.readWhole("A", "k"), "1");
    EXPECT_TRUE(play.writeString("A", "k", "3").ok());
    EXPECT_EQ(m_folder.get("gone/play.zpf"), "[A]\r\nk=3\r\n");
}

TEST_F(PlayFileBatch, TheObserverHearsEachActOnce) {
    std::vector<std::string> heard;
    m_play.setWriteObserver([&heard](const WriteResult& result) { heard.push_back(result.reason); });
    m_play.writeString("A", "k", "2");
    EXPECT_EQ(heard.size(), 1U);
    {
        WriteBatch batch(m_play);
        m_play.writeString("A", "k", "3");
        m_play.writeString("A", "j", "4");
        {
            WriteBatch inner(m_play);
            inner.commit();
        }
        EXPECT_EQ(heard.size(), 1U);
        batch.commit();
    }
    EXPECT_EQ(heard, std::vector<std::string>(2));
    m_play.writeString("A", "k", "3");
    EXPECT_EQ(heard.size(), 3U) << "what is there already is saved as well";
    {
        const WriteBatch dropped(m_play);
        m_play.writeString("A", "k", "5");
    }
    EXPECT_EQ(heard.size(), 3U);
    m_play.setWriteObserver({});
    m_play.writeString("A", "k", "6");
    EXPECT_EQ(heard.size(), 3U);
}

TEST_F(PlayFileBatch, TheObserverHearsAFailureAndTheSuccessThatFollows) {
    PlayFile play(m_folder.path("none/play.zpf"));
    std::vector<WriteResult> heard;
    play.setWriteObserver([&](const WriteResult& result) {
        heard.push_back(result);
        EXPECT_EQ(play.readInt("A", "k", -1), result.ok() ? 1 : -1) << "it may read the play";
    });
    EXPECT_FALSE(play.writeString("A", "k", "1").ok());
    std::filesystem::create_directory(m_folder.path("none"));
    EXPECT_TRUE(play.writeString("A", "k", "1").ok());
    ASSERT_EQ(heard.size(), 2U);
    EXPECT_FALSE(heard[0].ok());
    EXPECT_TRUE(heard[1].ok());
}

TEST_F(PlayFileBatch, AReplacementOfEverythingIsPartOfIt) {
    {
        const WriteBatch batch(m_play);
        m_play.replaceAll("[B]\nx=1\n");
        EXPECT_EQ(m_play.readWhole("B", "x"), "1");
    }
    EXPECT_EQ(m_play.readWhole("A", "k"), "1");
    WriteBatch batch(m_play);
    m_play.replaceAll("[B]\nx=1\n");
    m_play.writeString("B", "y", "2");
    EXPECT_TRUE(batch.commit().ok());
    EXPECT_EQ(m_folder.get(), "[B]\nx=1\ny=2\r\n");
}

TEST_F(PlayFileBatch, AMovedPlayFileGoesOn) {
    PlayFile moved(std::move(m_play));
    EXPECT_TRUE(moved.writeString("A", "k", "2").ok());
    EXPECT_EQ(moved.path(), m_folder.path());
    EXPECT_EQ(m_folder.get(), "[A]\r\nk=2\r\n");
}

TEST(ReadScope, SeesOneVersionOfTheFile) {
    const PlayFolder folder;
    const PlayFile play(folder.put("[A]\r\nk=1\r\n"));
    {
        const ReadScope outer(play);
        folder.put("[A]\r\nk=22\r\n");
        {
            const ReadScope inner(play);
            EXPECT_EQ(play.readWhole("A", "k"), "1");
        }
        EXPECT_EQ(play.readWhole("A", "k"), "1");
    }
    EXPECT_EQ(play.readWhole("A", "k"), "22");
}

TEST(ReadScope, SeesWhatIsWrittenWithinIt) {
    const PlayFolder folder;
    PlayFile play(folder.put("[A]\r\nk=1\r\n"));
    const ReadScope scope(play);
    EXPECT_TRUE(play.writeString("A", "k", "2").ok());
    EXPECT_EQ(play.readWhole("A", "k"), "2");
}

} // namespace
