#include "tests/document/play_folder.h"
#include "tests/editor/editor_walk.h"
#include "tests/editor/round_trip.h"

#include <gtest/gtest.h>
#include <random>

namespace zeltrona::editor {
namespace {

using namespace testing;

constexpr int kActions = 25'000;
constexpr int kActionsBetweenStores = 500;

class RandomWalk : public ::testing::TestWithParam<unsigned> {};

TEST_P(RandomWalk, KeepsEveryPromiseAndEveryFrameLoadsBackAsStored) {
    SCOPED_TRACE("seed " + std::to_string(GetParam()));
    std::mt19937 random(GetParam());
    std::uniform_int_distribution<unsigned> byte(0, 255);
    const zeltrona::tests::PlayFolder folder;
    const std::string scratch = folder.path("scratch.zpf");
    EditorWalk walk(folder.path("."));
    for (int i = 0; i < kActions; ++i) {
        WalkAction action{};
        for (auto& value : action) {
            value = static_cast<std::uint8_t>(byte(random));
        }
        walk.step(action);
        ASSERT_EQ(walk.brokenPromise(), "") << "action " << i;
        if (i % kActionsBetweenStores == 0) {
            ASSERT_EQ(roundTripFault(walk.records(), scratch), "") << "action " << i;
        }
    }
}

// Four walks make the hundred thousand actions.
INSTANTIATE_TEST_SUITE_P(, RandomWalk, ::testing::Values(1U, 20'304U, 777'777U, 4'000'000'007U),
                         [](const auto& row) { return "Seed" + std::to_string(row.param); });

} // namespace
} // namespace zeltrona::editor
