// A program that saves, adds, deletes and edits frames without pause is killed at any instant: the play is
// then one of the states that its acts lead to, whole, and none that was reported as stored is lost.

#include "document/frame_store.h"
#include "document/play_file.h"
#include "tests/document/play_folder.h"
#include "tests/fault/play_acts.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <gtest/gtest.h>
#include <new>
#include <random>
#include <string>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;
using namespace zeltrona::document;
using namespace zeltrona::tests;

namespace {

constexpr int kActs = 240; // after which the row begins anew

// The play after each act of the row, made by a program that nobody kills.
std::vector<std::string> statesOfTheRow() {
    const PlayFolder folder(quickPlace());
    PlayFile play(folder.put(firstPlay()));
    std::vector<std::string> states = {firstPlay()};
    for (int number = 0; number < kActs; ++number) {
        EXPECT_TRUE(doAct(play, number, folder.path("")).ok());
        states.push_back(folder.get());
    }
    return states;
}

// How many acts the program has reported as done; it outlives the program.
class SharedCounter {
public:
    SharedCounter()
        : m_memory(::mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE,
                          MAP_SHARED | MAP_ANONYMOUS, -1, 0)),
          m_value(new (m_memory) std::atomic<int>(0)) {}
    ~SharedCounter() { ::munmap(m_memory, sizeof(std::atomic<int>)); }
    SharedCounter(const SharedCounter&) = delete;
    SharedCounter& operator=(const SharedCounter&) = delete;
    std::atomic<int>& value() { return *m_value; }

private:
    void* m_memory;
    std::atomic<int>* m_value;
};

[[noreturn]] void actWithoutEnd(const PlayFolder& folder, std::atomic<int>& done) {
    PlayFile play(folder.path());
    for (;;) {
        const int number = done.load();
        if (number < kActs && !doAct(play, number, folder.path("")).ok()) {
            ::_exit(1); // the parent sees that it was not the one to end the program
        }
        done.store(std::min(number + 1, kActs));
    }
}

void waitMicroseconds(long microseconds) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::microseconds(microseconds);
    while (std::chrono::steady_clock::now() < end) {
        // sleeping would wake up at the ticks of the system's clock only, and always meet the same instants
    }
}

class KilledProgram {
public:
    explicit KilledProgram(const fs::path& place) : m_folder(place) {}

    /// Lets the program act for so long, kills it, and looks at what it left.
    void killAfter(long microseconds) {
        if (m_done.value() >= kActs || !fs::exists(m_folder.path())) {
            m_folder.put(m_states.front());
            m_done.value() = 0;
        }
        const int before = m_done.value();
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            actWithoutEnd(m_folder, m_done.value());
        }
        waitMicroseconds(microseconds);
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "an act failed";
        m_acts += m_done.value() - before;
        expectAWholeState();
    }

    int acts() const { return m_acts; }

private:
    void expectAWholeState() {
        const int done = m_done.value();
        const std::string now = m_folder.get();
        const bool isLast = now == m_states[static_cast<std::size_t>(done)];
        const bool isNext = done < kActs && now == m_states[static_cast<std::size_t>(done) + 1];
        ASSERT_TRUE(isLast || isNext) << "torn, or an act lost, after act " << done << ":\n" << now;
        m_done.value() = isLast ? done : done + 1;
        ASSERT_GE(countFrames(PlayFile(m_folder.path())), 3);
        removeWhatTheKilledOneLeft();
    }

    // It would go away at a save an hour later.
    void removeWhatTheKilledOneLeft() {
        for (const auto& entry : fs::directory_iterator(m_folder.path(""))) {
            const std::string name = entry.path().filename();
            if (name != "play.zpf") {
                ASSERT_TRUE(name.starts_with(".zeltrona-") || name == "zqTmp.zpf") << name;
                fs::remove(entry.path());
            }
        }
    }

    PlayFolder m_folder;
    std::vector<std::string> m_states = statesOfTheRow();
    SharedCounter m_done;
    int m_acts = 0;
};

void killManyTimes(const fs::path& place, int times, long longestMicroseconds) {
    const unsigned seed = 20250301;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_int_distribution<long> instant(0, longestMicroseconds);
    KilledProgram program(place);
    for (int i = 0; i < times; ++i) {
        ASSERT_NO_FATAL_FAILURE(program.killAfter(instant(random)));
    }
    EXPECT_GT(program.acts(), times / 20) << "the program hardly got to act between the kills";
}

TEST(KilledProgram, LeavesAWholePlayAtTwoThousandInstants) {
    killManyTimes(quickPlace(), 2000, 4000);
}

TEST(KilledProgram, LeavesAWholePlayOnARealDisk) {
    killManyTimes(fs::temp_directory_path(), 100, 60000);
}

TEST(KilledProgram, LeavesFilesThatTheNextOneClearsAwayInTime) {
    const PlayFolder folder;
    folder.put("half a pl", ".zeltrona-killed");
    fs::last_write_time(folder.path(".zeltrona-killed"),
                        fs::file_time_type::clock::now() - std::chrono::hours(2));
    PlayFile play(folder.put(firstPlay()));
    EXPECT_TRUE(doAct(play, 0, folder.path("")).ok());
    EXPECT_EQ(folder.othersThan(), 0U);
}

} // namespace
