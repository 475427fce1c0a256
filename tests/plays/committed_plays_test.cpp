#include "tests/document/play_folder.h"
#include "tools/plays/playbook.h"
#include "tools/plays/write_play.h"

#include <set>

namespace zeltrona::plays {
namespace {

const std::filesystem::path kCommitted = ZELTRONA_SOURCE_DIR "/assets/Files";

std::string bytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(CommittedPlays, AreWhatTheirScriptsMake) {
    const tests::PlayFolder folder;
    for (const PlayScript& play : playbook()) {
        ASSERT_TRUE(writePlay(play, folder.path("")).ok());
        const std::string name = play.file + ".zpf";
        EXPECT_EQ(folder.get(name), bytesOf(kCommitted / name)) << name << ": build the target plays";
    }
}

TEST(CommittedPlays, HaveNoStrangerAmongThem) {
    std::set<std::string> scripts;
    for (const PlayScript& play : playbook()) {
        scripts.insert(play.file + ".zpf");
    }
    std::set<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(kCommitted)) {
        files.insert(entry.path().filename().string());
    }
    EXPECT_EQ(files, scripts);
}

TEST(CommittedPlays, HaveNoFault) {
    for (const PlayScript& play : playbook()) {
        EXPECT_EQ(faultOf(play), "") << play.file;
    }
}

TEST(WritePlay, TellsWhyAFileCannotBeWritten) {
    EXPECT_FALSE(writePlay(horns(), "/no/such/folder").ok());
}

} // namespace
} // namespace zeltrona::plays
