// A play whose file vanished under the program is brought back by each saving act, with all that it held and
// with what the act stores: the same bytes as if the file had been there.

#include "document/frame_store.h"
#include "document/play_file.h"
#include "document/sequence.h"
#include "tests/document/play_folder.h"
#include "tests/fault/play_acts.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace zeltrona::document {
namespace {

using tests::PlayAct;
using tests::PlayFolder;

class VanishedPlay : public testing::TestWithParam<tests::NamedAct> {
protected:
    /// Four frames with balls and lines.
    VanishedPlay() {
        PlayFile play(m_folder.put(tests::firstPlay()));
        for (const int number : {5, 0, 11, 17}) {
            EXPECT_TRUE(tests::doAct(play, number, m_folder.path("")).ok());
        }
        m_before = m_folder.get();
        EXPECT_TRUE(tests::doAct(play, GetParam().number, m_folder.path("")).ok());
        m_after = m_folder.get();
        m_folder.put(m_before);
    }

    PlayFolder m_folder{tests::quickPlace()};
    std::string m_before;
    std::string m_after;
};

TEST_P(VanishedPlay, IsBroughtBackByTheActAsIfItHadBeenThere) {
    ASSERT_NE(m_after, m_before);
    PlayFile play(m_folder.path());
    PlayAct act = tests::prepareAct(play, GetParam().number);
    std::filesystem::remove(m_folder.path());
    EXPECT_TRUE(tests::performAct(play, act, m_folder.path("")).ok());
    EXPECT_EQ(m_folder.get(), m_after);
    EXPECT_EQ(m_folder.othersThan(), 0U);
}

TEST_P(VanishedPlay, IsBroughtBackAlsoAfterReadsThatFoundNothing) {
    PlayFile play(m_folder.path());
    PlayAct act = tests::prepareAct(play, GetParam().number);
    std::filesystem::remove(m_folder.path());
    EXPECT_EQ(countFrames(play), 0) << "a read tells of the file as it is now";
    EXPECT_TRUE(tests::performAct(play, act, m_folder.path("")).ok());
    EXPECT_EQ(m_folder.get(), m_after);
}

TEST_P(VanishedPlay, WhoseFolderWentTooIsToldAndComesBackWithTheFolder) {
    const std::string folder = m_folder.path("gone");
    std::filesystem::create_directory(folder);
    PlayFile play(m_folder.put(m_before, "gone/play.zpf"));
    PlayAct act = tests::prepareAct(play, GetParam().number);
    std::filesystem::remove_all(folder);
    PlayAct again = act;
    EXPECT_EQ(tests::performAct(play, act, folder).reason, "No such file or directory");
    EXPECT_FALSE(std::filesystem::exists(folder));
    std::filesystem::create_directory(folder);
    EXPECT_TRUE(tests::performAct(play, again, folder).ok());
    EXPECT_EQ(m_folder.get("gone/play.zpf"), m_after);
}

INSTANTIATE_TEST_SUITE_P(Acts, VanishedPlay, testing::ValuesIn(tests::kStoringActs),
                         [](const auto& given) { return given.param.name; });

} // namespace
} // namespace zeltrona::document
