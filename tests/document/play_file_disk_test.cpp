#include "document/play_file.h"
#include "document/whole_file.h"
#include "tests/document/other_user.h"
#include "tests/document/play_folder.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace zeltrona::document;
using zeltrona::tests::holdsForPlainUser;
using zeltrona::tests::PlayFolder;

namespace {

constexpr std::string_view kPlay = "[A]\r\nk=1\r\n";

struct stat statusOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
    return status;
}

// The bytes that this process has read from files so far.
long long bytesRead() {
    std::ifstream counters("/proc/self/io");
    std::string name;
    long long value = 0;
    counters >> name >> value;
    return value;
}

TEST(PlayFileDisk, AMissingFileIsMadeByAWrite) {
    const PlayFolder folder;
    PlayFile play(folder.path());
    EXPECT_TRUE(play.writeString("A", "k", "1").ok());
    EXPECT_EQ(folder.get(), kPlay);
    EXPECT_EQ(folder.othersThan(), 0U);
}

TEST(PlayFileDisk, AMissingFileIsMadeEmptyByADeletion) {
    const PlayFolder folder;
    EXPECT_TRUE(PlayFile(folder.path("a")).deleteKey("A", "k").ok());
    EXPECT_TRUE(PlayFile(folder.path("b")).deleteSection("A").ok());
    EXPECT_TRUE(fs::exists(folder.path("a")));
    EXPECT_EQ(fs::file_size(folder.path("a")), 0U);
    EXPECT_EQ(fs::file_size(folder.path("b")), 0U);
}

TEST(PlayFileDisk, AMissingFileIsMadeByAnEmptyReplacement) {
    const PlayFolder folder;
    EXPECT_TRUE(PlayFile(folder.path()).replaceAll("").ok());
    EXPECT_TRUE(fs::exists(folder.path()));
}

TEST(PlayFileDisk, AChangeByAnotherProgramIsSeenAtTheNextRead) {
    const PlayFolder folder;
    PlayFile play(folder.put("[A]\r\nk=0\r\n"));
    for (int i = 1; i < 60; ++i) {
        const std::string value = std::to_string(i % 10);
        folder.put("[A]\r\nk=" + value + "\r\n"); // same file, same size, most often within the same tick
        ASSERT_EQ(play.readWhole("A", "k"), value);
        ASSERT_TRUE(play.writeString("A", "k", "x").ok());
        folder.put("[A]\r\nk=" + value + "\r\n");
        ASSERT_EQ(play.readWhole("A", "k"), value);
    }
}

TEST(PlayFileDisk, AChangeWithItsTimeSetBackIsSeen) {
    const PlayFolder folder;
    const PlayFile play(folder.put(kPlay));
    fs::last_write_time(folder.path(), fs::file_time_type::clock::now() - std::chrono::hours(1));
    EXPECT_EQ(play.readWhole("A", "k"), "1");
    const auto time = fs::last_write_time(folder.path());
    folder.put("[A]\r\nk=2\r\n");
    fs::last_write_time(folder.path(), time);
    EXPECT_EQ(play.readWhole("A", "k"), "2");
}

TEST(PlayFileDisk, AWriteBuildsOnTheFileAsItIsNow) {
    const PlayFolder folder;
    PlayFile play(folder.put(kPlay));
    EXPECT_EQ(play.readWhole("A", "k"), "1");
    folder.put("[A]\r\nk=1\r\nj=other\r\n");
    EXPECT_TRUE(play.writeString("A", "k", "2").ok());
    EXPECT_EQ(folder.get(), "[A]\r\nk=2\r\nj=other\r\n");
}

TEST(PlayFileDisk, AnUnchangedFileIsReadOnce) {
    const PlayFolder folder;
    const std::string bytes = std::string(kPlay) + std::string(1'000'000, ';');
    PlayFile play(folder.put(bytes));
    fs::last_write_time(folder.path(), fs::last_write_time(folder.path()) - std::chrono::hours(1));
    EXPECT_EQ(play.readInt("A", "k", 0), 1);
    long long before = bytesRead();
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(play.readInt("A", "k", 0), 1);
    }
    EXPECT_LT(bytesRead() - before, 100'000);
    EXPECT_TRUE(play.writeString("A", "k", "2").ok());
    before = bytesRead();
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(play.readInt("A", "k", 0), 2);
    }
    EXPECT_LT(bytesRead() - before, 100'000) << "what was just written is known";
}

TEST(PlayFileDisk, AFileThatVanishedIsMadeAgainWhole) {
    const PlayFolder folder;
    PlayFile play(folder.put("head\r\n[A]\r\nk=1\r\n"));
    EXPECT_EQ(play.readWhole("A", "k"), "1");
    fs::remove(folder.path());
    EXPECT_EQ(play.readWhole("A", "k", "none"), "none") << "a read tells of the file as it is now";
    EXPECT_TRUE(play.writeString("A", "j", "2").ok());
    EXPECT_EQ(folder.get(), "head\r\n[A]\r\nk=1\r\nj=2\r\n");
    EXPECT_EQ(play.readWhole("A", "k"), "1");
}

TEST(PlayFileDisk, AFileThatVanishedIsMadeAgainEvenByAWriteOfWhatItHeld) {
    const PlayFolder folder;
    PlayFile play(folder.put(kPlay));
    EXPECT_EQ(play.readWhole("A", "k"), "1");
    fs::remove(folder.path());
    EXPECT_TRUE(play.writeString("A", "k", "1").ok());
    EXPECT_EQ(folder.get(), kPlay);
}

TEST(PlayFileDisk, AVanishedFileIsStillKnownAfterAFailedWrite) {
    const PlayFolder folder;
    fs::create_directory(folder.path("f"));
    PlayFile play(folder.put(kPlay, "f/play.zpf"));
    EXPECT_EQ(play.readWhole("A", "k"), "1");
    fs::remove_all(folder.path("f"));
    EXPECT_FALSE(play.writeString("A", "j", "2").ok());
    fs::create_directory(folder.path("f"));
    EXPECT_TRUE(play.writeString("A", "j", "3").ok());
    EXPECT_EQ(folder.get("f/play.zpf"), "[A]\r\nk=1\r\nj=3\r\n");
}

TEST(PlayFileDisk, AFileThatCameBackCountsAsItIs) {
    const PlayFolder folder;
    PlayFile play(folder.put(kPlay));
    EXPECT_EQ(play.readWhole("A", "k"), "1");
    fs::remove(folder.path());
    EXPECT_FALSE(play.hasKey("A", "k"));
    folder.put("[B]\r\n");
    EXPECT_TRUE(play.writeString("B", "x", "1").ok());
    EXPECT_EQ(folder.get(), "[B]\r\nx=1\r\n");
}

TEST(PlayFileDisk, ASymbolicLinkSurvives) {
    const PlayFolder folder;
    fs::create_directory(folder.path("real"));
    folder.put(kPlay, "real/play.zpf");
    fs::create_symlink("real/play.zpf", folder.path("one"));
    fs::create_symlink(folder.path("one"), folder.path("two"));
    PlayFile play(folder.path("two"));
    EXPECT_TRUE(play.writeString("A", "k", "2").ok());
    EXPECT_TRUE(fs::is_symlink(folder.path("two")));
    EXPECT_TRUE(fs::is_symlink(folder.path("one")));
    EXPECT_FALSE(fs::is_symlink(folder.path("real/play.zpf")));
    EXPECT_EQ(folder.get("real/play.zpf"), "[A]\r\nk=2\r\n");
    EXPECT_EQ(play.readWhole("A", "k"), "2");
}

TEST(PlayFileDisk, ALinkToNothingGetsItsTarget) {
    const PlayFolder folder;
    fs::create_symlink("later.zpf", folder.path("link"));
    EXPECT_TRUE(PlayFile(folder.path("link")).writeString("A", "k", "1").ok());
    EXPECT_TRUE(fs::is_symlink(folder.path("link")));
    EXPECT_EQ(folder.get("later.zpf"), kPlay);
}

TEST(PlayFileDisk, ALoopOfLinksIsAFailureWithAReason) {
    const PlayFolder folder;
    fs::create_symlink("b", folder.path("a"));
    fs::create_symlink("a", folder.path("b"));
    PlayFile play(folder.path("a"));
    EXPECT_EQ(play.readInt("A", "k", 7), 7);
    EXPECT_EQ(play.writeString("A", "k", "1").reason, "Too many levels of symbolic links");
    EXPECT_TRUE(fs::is_symlink(folder.path("a")));
}

TEST(PlayFileDisk, PermissionsSurvive) {
    const PlayFolder folder;
    PlayFile play(folder.put(kPlay));
    for (const mode_t mode : {0640U, 0600U, 0664U, 0755U}) {
        ASSERT_EQ(::chmod(folder.path().c_str(), mode), 0);
        EXPECT_TRUE(play.writeString("A", "k", std::to_string(mode)).ok());
        EXPECT_EQ(statusOf(folder.path()).st_mode & 07777U, mode);
    }
}

TEST(PlayFileDisk, ANewFileHasTheRightsOfAnyNewFile) {
    const PlayFolder folder;
    const mode_t mask = ::umask(0027);
    PlayFile(folder.path()).writeString("A", "k", "1");
    ::umask(mask);
    EXPECT_EQ(statusOf(folder.path()).st_mode & 07777U, 0640U);
}

TEST(PlayFileDisk, OwnerAndGroupSurviveWhereTheSystemAllowsIt) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only root may give a file away";
    }
    const PlayFolder folder;
    PlayFile play(folder.put(kPlay));
    ASSERT_EQ(::chown(folder.path().c_str(), 12345, 23456), 0);
    EXPECT_TRUE(play.writeString("A", "k", "2").ok());
    EXPECT_EQ(statusOf(folder.path()).st_uid, 12345U);
    EXPECT_EQ(statusOf(folder.path()).st_gid, 23456U);
}

// A folder that a plain user may work in, with one file of the given rights, owned by that user.
class SharedFolder : public PlayFolder {
public:
    explicit SharedFolder(mode_t mode) {
        constexpr uid_t kNobody = 65534;
        EXPECT_EQ(::chmod(path("").c_str(), 0777), 0);
        put(kPlay);
        EXPECT_EQ(::chmod(path().c_str(), mode), 0);
        if (::geteuid() == 0) {
            EXPECT_EQ(::chown(path().c_str(), kNobody, kNobody), 0);
        }
    }
};

TEST(PlayFileDisk, AFileThatMayNotBeWrittenIsNotReplaced) {
    const SharedFolder folder(0444);
    EXPECT_TRUE(holdsForPlainUser([&folder] {
        PlayFile play(folder.path());
        return play.readInt("A", "k", 0) == 1 && play.writeString("A", "k", "2").reason == "Permission denied"
               && play.readInt("A", "k", 0) == 1;
    }));
    EXPECT_EQ(folder.get(), kPlay);
    EXPECT_EQ(folder.othersThan(), 0U);
}

TEST(PlayFileDisk, AFileThatMayNotBeReadIsNotReplacedByAlmostNothing) {
    const SharedFolder folder(0200);
    EXPECT_TRUE(holdsForPlainUser([&folder] {
        PlayFile play(folder.path());
        WriteBatch batch(play);
        const bool told = play.writeString("A", "k", "2").reason == "Permission denied";
        return play.readInt("A", "k", 5) == 5 && told && batch.commit().reason == "Permission denied"
               && play.deleteSection("A").reason == "Permission denied"
               && play.replaceAll("x").reason == "Permission denied";
    }));
    EXPECT_EQ(folder.get(), kPlay);
}

TEST(PlayFileDisk, AFolderThatMayNotBeWrittenIsAFailureWithAReason) {
    const SharedFolder folder(0644);
    ASSERT_EQ(::chmod(folder.path("").c_str(), 0555), 0);
    if (::geteuid() != 0) {
        EXPECT_EQ(PlayFile(folder.path()).writeString("A", "k", "2").reason, "Permission denied");
    } else {
        EXPECT_TRUE(holdsForPlainUser([&folder] {
            return PlayFile(folder.path()).writeString("A", "k", "2").reason == "Permission denied";
        }));
    }
    ASSERT_EQ(::chmod(folder.path("").c_str(), 0777), 0);
    EXPECT_EQ(folder.get(), kPlay);
}

TEST(PlayFileDisk, ARefusalIsKnownAheadOfTheWrite) {
    const SharedFolder folder(0444);
    EXPECT_EQ(refusalToReplace(folder.path("new.zpf")), "");
    EXPECT_EQ(refusalToReplace(folder.path("")), "Is a directory");
    EXPECT_EQ(refusalToReplace(folder.path("none/new.zpf")), "No such file or directory");
    EXPECT_TRUE(holdsForPlainUser([&folder] {
        return refusalToReplace(folder.path()) == "Permission denied";
    })) << "the file";
    ASSERT_EQ(::chmod(folder.path().c_str(), 0666), 0);
    EXPECT_TRUE(holdsForPlainUser([&folder] { return refusalToReplace(folder.path()).empty(); }));
    ASSERT_EQ(::chmod(folder.path("").c_str(), 0555), 0);
    EXPECT_TRUE(holdsForPlainUser([&folder] {
        return refusalToReplace(folder.path()) == "Permission denied";
    })) << "the folder";
    ASSERT_EQ(::chmod(folder.path("").c_str(), 0777), 0);
}

TEST(PlayFileDisk, ADirectoryReadsAsDefaultsAndIsNotWritten) {
    const PlayFolder folder;
    PlayFile play(folder.path(""));
    EXPECT_EQ(play.readString("A", "k", "none", 10), "none");
    EXPECT_EQ(play.bytes(), "");
    EXPECT_EQ(play.writeString("A", "k", "1").reason, "Is a directory");
    EXPECT_EQ(play.deleteKey("A", "k").reason, "Is a directory");
    EXPECT_TRUE(fs::is_directory(folder.path("")));
}

TEST(PlayFileDisk, AFileThatBecameUnreadableReadsAsDefaultsAndIsNotWritten) {
    const PlayFolder folder;
    PlayFile play(folder.put(kPlay));
    EXPECT_EQ(play.readInt("A", "k", 0), 1);
    fs::remove(folder.path());
    fs::create_directory(folder.path());
    EXPECT_EQ(play.readInt("A", "k", 9), 9);
    EXPECT_FALSE(play.writeString("A", "k", "2").ok());
    fs::remove(folder.path());
    EXPECT_TRUE(play.writeString("A", "j", "2").ok());
    EXPECT_EQ(folder.get(), "[A]\r\nk=1\r\nj=2\r\n") << "once it is gone, the play comes back";
}

TEST(PlayFileDisk, APipeAndADeviceAreNeitherWaitedForNorWritten) {
    const PlayFolder folder;
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    for (const std::string& path : {folder.path("pipe"), std::string("/dev/zero")}) {
        PlayFile play(path);
        EXPECT_EQ(play.readInt("A", "k", 4), 4);
        EXPECT_EQ(play.writeString("A", "k", "1").reason, "Not a regular file");
        EXPECT_FALSE(S_ISREG(statusOf(path).st_mode));
    }
}

TEST(PlayFileDisk, AFileLongerThanAnyPlayIsNeitherReadNorWritten) {
    const PlayFolder folder;
    folder.put(kPlay);
    fs::resize_file(folder.path(), static_cast<std::uintmax_t>(kLongestFile) + 1);
    PlayFile play(folder.path());
    EXPECT_EQ(play.readInt("A", "k", 4), 4);
    EXPECT_EQ(play.writeString("A", "k", "2").reason, "File too large");
    EXPECT_EQ(fs::file_size(folder.path()), static_cast<std::uintmax_t>(kLongestFile) + 1);
}

TEST(PlayFileDisk, PathsThatNameNoFileAreFailuresWithReasons) {
    const PlayFolder folder;
    folder.put("x", "file");
    EXPECT_EQ(PlayFile("").writeString("A", "k", "1").reason, "No such file or directory");
    EXPECT_EQ(PlayFile(folder.path("none/play.zpf")).writeString("A", "k", "1").reason,
              "No such file or directory");
    EXPECT_EQ(PlayFile(folder.path("file/play.zpf")).writeString("A", "k", "1").reason, "Not a directory");
    EXPECT_EQ(PlayFile(folder.path(std::string(300, 'n'))).writeString("A", "k", "1").reason,
              "File name too long");
    EXPECT_EQ(PlayFile(folder.path(std::string_view("a\0b", 3))).writeString("A", "k", "1").reason,
              "Invalid argument");
    EXPECT_EQ(PlayFile("").readInt("A", "k", 3), 3);
    EXPECT_EQ(folder.othersThan("file"), 0U);
}

TEST(PlayFileDisk, ALongFileNameLeavesRoomForTheFileBeside) {
    const PlayFolder folder;
    const std::string name(255, 'n');
    EXPECT_TRUE(PlayFile(folder.path(name)).writeString("A", "k", "1").ok());
    EXPECT_EQ(folder.get(name), kPlay);
}

TEST(PlayFileDisk, ARelativePathIsWrittenInItsFolder) {
    const PlayFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.path(""));
    EXPECT_TRUE(PlayFile("play.zpf").writeString("A", "k", "1").ok());
    fs::current_path(before);
    EXPECT_EQ(folder.get(), kPlay);
}

TEST(PlayFileDisk, TheFirstWriteRemovesWhatKilledWritersLeftLongAgo) {
    const PlayFolder folder;
    PlayFile play(folder.put(kPlay));
    const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(2);
    for (const char* name : {".zeltrona-abcDEF", ".zeltrona-young1", ".zeltrona-longer7", "other"}) {
        folder.put("torn", name);
    }
    fs::last_write_time(folder.path(".zeltrona-abcDEF"), longAgo);
    fs::last_write_time(folder.path(".zeltrona-longer7"), longAgo);
    fs::last_write_time(folder.path("other"), longAgo);
    EXPECT_TRUE(play.writeString("A", "k", "2").ok());
    EXPECT_FALSE(fs::exists(folder.path(".zeltrona-abcDEF")));
    EXPECT_TRUE(fs::exists(folder.path(".zeltrona-young1"))) << "it may belong to a program at work";
    EXPECT_TRUE(fs::exists(folder.path(".zeltrona-longer7")));
    EXPECT_TRUE(fs::exists(folder.path("other")));
}

TEST(PlayFileDisk, TwoObjectsOnOneFileSeeEachOther) {
    const PlayFolder folder;
    PlayFile one(folder.put(kPlay));
    PlayFile two(folder.path());
    for (int i = 0; i < 20; ++i) {
        EXPECT_TRUE(one.writeString("A", "k", std::to_string(i)).ok());
        EXPECT_EQ(two.readInt("A", "k", -1), i);
        EXPECT_TRUE(two.writeString("A", "j", std::to_string(i)).ok());
        EXPECT_EQ(one.readInt("A", "j", -1), i);
    }
    EXPECT_EQ(folder.get(), "[A]\r\nk=19\r\nj=19\r\n");
}

} // namespace
