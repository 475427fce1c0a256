// Two programs work on one play at the same time: a reader always meets a whole version of it, and neither
// program undoes what the other has stored.

#include "document/play_file.h"
#include "tests/document/play_folder.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

using namespace zeltrona::document;
using namespace zeltrona::tests;

namespace {

constexpr int kRounds = 150;

// Each version holds the same number in three places and a line at its end.
std::string version(int number) {
    return "[Config]\r\nfirst=" + std::to_string(number) + "\r\nfill=" + std::string(60'000, 'x')
           + "\r\nsecond=" + std::to_string(number) + "\r\n[End]\r\nthird=" + std::to_string(number) + "\r\n";
}

pid_t inAnotherProgram(const std::function<bool()>& work) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(work() ? 0 : 1);
    }
    return child;
}

bool endedWell(pid_t child) {
    int status = 0;
    return ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool writeVersions(const std::string& path, int from) {
    PlayFile play(path);
    for (int round = 0; round < kRounds; ++round) {
        WriteBatch batch(play);
        const std::string number = std::to_string(from + round);
        play.writeString("Config", "first", number);
        play.writeString("Config", "second", number);
        play.writeString("End", "third", number);
        if (!batch.commit().ok()) {
            return false;
        }
    }
    return true;
}

bool writeOwnKeys(const std::string& path, const std::string& name) {
    PlayFile play(path);
    for (int round = 0; round < kRounds; ++round) {
        if (!play.writeString("Config", name + std::to_string(round), "done").ok()) {
            return false;
        }
    }
    return true;
}

TEST(TwoPrograms, NeverTearThePlayForAReader) {
    const PlayFolder folder(quickPlace());
    const std::string path = folder.put(version(0));
    const pid_t one = inAnotherProgram([&path] { return writeVersions(path, 1000); });
    const pid_t two = inAnotherProgram([&path] { return writeVersions(path, 5000); });
    const PlayFile reader(path);
    int versions = 0;
    int last = 0;
    for (int look = 0; look < 5000; ++look) {
        const ReadScope scope(reader);
        const int first = reader.readInt("Config", "first", -1);
        ASSERT_EQ(reader.readInt("Config", "second", -2), first);
        ASSERT_EQ(reader.readInt("End", "third", -3), first);
        versions += first != last ? 1 : 0;
        last = first;
    }
    EXPECT_TRUE(endedWell(one));
    EXPECT_TRUE(endedWell(two));
    EXPECT_GT(versions, 1);
    EXPECT_EQ(folder.get(), version(reader.readInt("Config", "first", 0)));
}

TEST(TwoPrograms, KeepWhatEachOtherStored) {
    const PlayFolder folder(quickPlace());
    const std::string path = folder.put("[Config]\r\n");
    const pid_t one = inAnotherProgram([&path] { return writeOwnKeys(path, "one"); });
    const pid_t two = inAnotherProgram([&path] { return writeOwnKeys(path, "two"); });
    EXPECT_TRUE(endedWell(one));
    EXPECT_TRUE(endedWell(two));
    const PlayFile play(path);
    for (int round = 0; round < kRounds; ++round) {
        ASSERT_EQ(play.readWhole("Config", "one" + std::to_string(round)), "done");
        ASSERT_EQ(play.readWhole("Config", "two" + std::to_string(round)), "done");
    }
}

TEST(TwoPrograms, OneThatHoldsItsTurnForeverDoesNotStopTheOther) {
    const PlayFolder folder;
    PlayFile holder(folder.put("[Config]\r\n"));
    const WriteBatch turn(holder);
    PlayFile other(folder.path());
    EXPECT_TRUE(other.writeString("Config", "court", "1").ok());
    EXPECT_EQ(folder.get(), "[Config]\r\ncourt=1\r\n");
}

} // namespace
