// Every call of the write path fails once, in every way: the old play stands byte for byte, the user is told
// why, and the next save works.

#include "document/frame_store.h"
#include "document/play_file.h"
#include "tests/document/play_folder.h"
#include "tests/fault/failing_calls.h"
#include "tests/fault/play_acts.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace zeltrona::document;
using namespace zeltrona::tests;

namespace {

constexpr std::array kErrors = {ENOSPC, EIO, EACCES, EROFS, EINTR, EDQUOT, ENOMEM};

// The play that the acts begin with: act 5 gives it balls and lines, act 0 a frame more.
std::string playWithObjects(const PlayFolder& folder) {
    PlayFile play(folder.put(firstPlay(), "start.zpf"));
    for (const int number : {5, 0, 11, 5 + 12}) {
        EXPECT_TRUE(doAct(play, number, folder.path("")).ok());
    }
    return folder.get("start.zpf");
}

class FailingCalls : public testing::TestWithParam<NamedAct> {
protected:
    // A play that was stored some time ago: one that may still change within the tick of its time is read
    // twice, and the calls of an act would not always be the same.
    std::string putBefore(std::string_view name = "play.zpf") {
        const std::string path = m_folder.put(m_before, name);
        std::filesystem::last_write_time(path, std::filesystem::file_time_type::clock::now()
                                                   - std::chrono::hours(1));
        return path;
    }

    FailingCalls() {
        PlayFile play(putBefore("after.zpf"));
        PlayAct act = prepareAct(play, GetParam().number);
        startCounting();
        EXPECT_TRUE(performAct(play, act, m_folder.path("")).ok());
        m_calls = stopCounting();
        m_after = m_folder.get("after.zpf");
        std::filesystem::remove(m_folder.path("after.zpf"));
        std::filesystem::remove(m_folder.path("start.zpf"));
    }

    // Does the act while the call fails, and looks at what is left.
    void failAndLook(int place, int error) {
        SCOPED_TRACE(m_calls[static_cast<std::size_t>(place)] + ", call " + std::to_string(place) + ", "
                     + std::strerror(error));
        PlayFile play(putBefore());
        std::vector<std::string> told;
        play.setWriteObserver([&told](const WriteResult& result) { told.push_back(result.reason); });
        PlayAct act = prepareAct(play, GetParam().number);
        failCall(place, error);
        const WriteResult result = performAct(play, act, m_folder.path(""));
        ASSERT_TRUE(endFailures());
        expectOldOrNew(result, place);
        ASSERT_EQ(told.empty() ? std::string() : told.back(), result.reason);
        if (error == EINTR) {
            ASSERT_TRUE(result.ok()) << "a signal is no failure: " << result.reason;
        }
        ASSERT_EQ(play.bytes(), m_folder.get()) << "what is known of the play is what stands on the disk";
        ASSERT_TRUE(play.writeString("Config", "txtTitle", "the next save").ok());
        ASSERT_EQ(PlayFile(m_folder.path()).readWhole("Config", "txtTitle"), "the next save");
    }

    void expectOldOrNew(const WriteResult& result, int place) {
        const std::string now = m_folder.get();
        const auto renamed = std::find(m_calls.begin(), m_calls.end(), "rename");
        if (result.ok()) {
            ASSERT_EQ(now, m_after);
        } else if (place > renamed - m_calls.begin()) {
            ASSERT_EQ(now, m_after) << "whole, though the disk did not confirm it";
        } else {
            ASSERT_EQ(now, m_before);
        }
        const bool stuck = m_calls[static_cast<std::size_t>(place)] == "unlink";
        ASSERT_LE(m_folder.othersThan(), stuck ? 1U : 0U) << "nothing is left beside the play";
    }

    PlayFolder m_folder{quickPlace()};
    std::string m_before = playWithObjects(m_folder);
    std::string m_after;
    std::vector<std::string> m_calls;
};

TEST_P(FailingCalls, LeaveTheOldPlayAndTellWhy) {
    ASSERT_NE(m_before, m_after);
    ASSERT_EQ(std::count(m_calls.begin(), m_calls.end(), "rename"), 1) << "one act is one replacement";
    ASSERT_GE(std::count(m_calls.begin(), m_calls.end(), "fsync"), 2) << "the file, then its folder";
    for (int place = 0; place < static_cast<int>(m_calls.size()); ++place) {
        for (const int error : kErrors) {
            ASSERT_NO_FATAL_FAILURE(failAndLook(place, error));
        }
    }
}

TEST_P(FailingCalls, OfTheWritingKindAreFailuresOfTheAct) {
    for (const std::string name : {"mkostemp", "writev", "fchmod", "fsync", "rename"}) {
        SCOPED_TRACE(name);
        const auto place = std::find(m_calls.begin(), m_calls.end(), name) - m_calls.begin();
        PlayFile play(putBefore());
        PlayAct act = prepareAct(play, GetParam().number);
        failCall(static_cast<int>(place), ENOSPC);
        EXPECT_EQ(performAct(play, act, m_folder.path("")).reason, "No space left on device");
        EXPECT_TRUE(endFailures());
        EXPECT_EQ(m_folder.get(), m_before);
        EXPECT_EQ(m_folder.othersThan(), 0U);
    }
}

TEST_P(FailingCalls, ShortWritesAreGoneOnWith) {
    for (const long bytes : {1L, 7L, 1000L}) {
        PlayFile play(putBefore());
        shortenWrites(bytes);
        EXPECT_TRUE(doAct(play, GetParam().number, m_folder.path("")).ok());
        endFailures();
        EXPECT_EQ(m_folder.get(), m_after);
    }
}

TEST_P(FailingCalls, WritesThatTakeNothingAreAFailureAndNoEndlessTry) {
    PlayFile play(putBefore());
    PlayAct act = prepareAct(play, GetParam().number);
    emptyWrites();
    EXPECT_EQ(performAct(play, act, m_folder.path("")).reason, "Input/output error");
    EXPECT_TRUE(endFailures());
    EXPECT_EQ(m_folder.get(), m_before);
    EXPECT_EQ(m_folder.othersThan(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Acts, FailingCalls, testing::ValuesIn(kStoringActs),
                         [](const auto& act) { return act.param.name; });

} // namespace
