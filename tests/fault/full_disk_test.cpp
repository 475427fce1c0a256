// A file system that is really full, and a file that may grow no further.

#include "document/play_file.h"
#include "tests/document/play_folder.h"

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace zeltrona::document;
using namespace zeltrona::tests;

namespace {

constexpr int kNotPermitted = 77;

std::string playOf(std::size_t length) {
    return "[Config]\r\nfill=" + std::string(length, 'x') + "\r\ncourt=1\r\n";
}

void fill(const std::string& path) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT, 0600);
    const std::string block(4096, 'f');
    while (::write(file, block.data(), block.size()) > 0) {
    }
    ::close(file);
}

// In a process and a mount table of its own, so that nothing stays mounted whatever happens.
int saveOnFullFileSystem(const PlayFolder& folder) {
    const std::string disk = folder.path("");
    if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0
        || ::mount("zeltrona", disk.c_str(), "tmpfs", 0, "size=256k") != 0) {
        return kNotPermitted;
    }
    const std::string old = playOf(100'000);
    folder.put(old);
    PlayFile play(folder.path());
    fill(folder.path("filler"));
    const bool told = play.writeString("Config", "court", "2").reason == "No space left on device";
    const bool stands = folder.get() == old && play.readInt("Config", "court", 0) == 1;
    const bool clean = folder.othersThan() == 1;
    std::filesystem::remove(folder.path("filler"));
    const bool works = play.writeString("Config", "court", "3").ok()
                       && play.readInt("Config", "court", 0) == 3 && folder.get().ends_with("court=3\r\n");
    return told && stands && clean && works ? 0 : 1;
}

// The limit stands in for a quota where no file system can be mounted.
int saveBeyondTheLimit(const PlayFolder& folder) {
    const std::string old = playOf(20'000);
    PlayFile play(folder.put(old));
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{10'000, RLIM_INFINITY};
    rlimit usual{};
    ::getrlimit(RLIMIT_FSIZE, &usual);
    ::setrlimit(RLIMIT_FSIZE, &limit);
    const bool told = play.writeString("Config", "court", "2").reason == "File too large";
    const bool stands = folder.get() == old && folder.othersThan() == 0;
    ::setrlimit(RLIMIT_FSIZE, &usual);
    const bool works = play.writeString("Config", "court", "3").ok();
    return told && stands && works && play.readInt("Config", "court", 0) == 3 ? 0 : 1;
}

int exitCodeOf(int (*work)(const PlayFolder&), const PlayFolder& folder) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(work(folder));
    }
    int status = 0;
    return ::waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(FullDisk, LeavesTheOldPlayAndTheNextSaveWorksOnceThereIsRoom) {
    const PlayFolder folder;
    const int code = exitCodeOf(saveOnFullFileSystem, folder);
    if (code == kNotPermitted) {
        GTEST_SKIP() << "this user may not mount a small file system";
    }
    EXPECT_EQ(code, 0);
}

TEST(FullDisk, AFileThatMayNotGrowLeavesTheOldPlay) {
    const PlayFolder folder;
    EXPECT_EQ(exitCodeOf(saveBeyondTheLimit, folder), 0);
}

} // namespace
