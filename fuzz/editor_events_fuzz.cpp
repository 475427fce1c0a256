// Any stream of presses, moves, releases, tools, keys and frame changes leaves the editor and its records
// sound, and the frame loads back as it was stored.

#include "fuzz/check.h"
#include "tests/editor/editor_walk.h"
#include "tests/editor/round_trip.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <unistd.h>

namespace {

/// A folder for the plays of the whole run.
class WalkFolder {
public:
    WalkFolder()
        : m_path(std::filesystem::temp_directory_path() / ("zeltrona-walk-" + std::to_string(::getpid()))) {
        std::filesystem::create_directories(m_path);
    }
    ~WalkFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    WalkFolder(const WalkFolder&) = delete;
    WalkFolder& operator=(const WalkFolder&) = delete;

    std::string path() const { return m_path.string(); }

private:
    std::filesystem::path m_path;
};

void demandSound(const std::string& broken) {
    if (!broken.empty()) {
        std::fprintf(stderr, "%s\n", broken.c_str());
    }
    FUZZ_CHECK(broken.empty());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zeltrona::editor::testing;
    static const WalkFolder folder;
    EditorWalk walk(folder.path());
    constexpr std::size_t kLength = WalkAction().size();
    for (; size >= kLength; data += kLength, size -= kLength) {
        WalkAction action{};
        std::copy(data, data + kLength, action.begin());
        walk.step(action);
        demandSound(walk.brokenPromise());
    }
    demandSound(roundTripFault(walk.records(), folder.path() + "/scratch.zpf"));
    return 0;
}
