#include "animation/prepare_step.h"
#include "animation/step_players.h"
#include "document/frame_store.h"

#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>

namespace zeltrona::animation {
namespace {

/// The furthest that anybody of the group goes between two moments.
double longestStep(const std::vector<PlayerRec>& before, const std::vector<PlayerRec>& after) {
    double longest = 0;
    for (std::size_t i = 0; i < before.size(); ++i) {
        longest = std::max(longest, std::hypot(static_cast<double>(after[i].x) - before[i].x,
                                               static_cast<double>(after[i].y) - before[i].y));
    }
    return longest;
}

/// The step is turned by hand.
struct StillTimer : AnimTimer {
    void startTicks() override {}
    void stopTicks() override {}
};

struct PlayedStep {
    int ticks = 0;
    double longest = 0;
};

/// Plays the way out of a frame until everybody has arrived.
PlayedStep playedStep(const document::PlayFile& play, std::int16_t frame, std::int16_t last) {
    constexpr int kEndless = 1000;
    PlaybackSet set;
    StillTimer timer;
    std::vector<document::TriangleRec> triangles(1);
    set.animFrame = frame;
    set.animLastFrame = last;
    prepareAnimationStep(set, play, triangles, timer);
    PlayedStep step;
    while (!(set.animOffDone && set.animDefDone && set.animBallDone) && step.ticks < kEndless) {
        const PlaybackSet before = set;
        ++set.animTick;
        ++step.ticks;
        stepPlayers(set);
        step.longest = std::max({step.longest, longestStep(before.offAnimCur, set.offAnimCur),
                                 longestStep(before.defAnimCur, set.defAnimCur),
                                 longestStep(before.ballAnimCur, set.ballAnimCur)});
    }
    return step;
}

TEST(SamplePlays, PlayToTheirEndWithoutAJump) {
    for (const auto& entry : std::filesystem::directory_iterator(ZELTRONA_SOURCE_DIR "/assets/Files")) {
        const document::PlayFile play(entry.path().string());
        const std::int16_t last = document::countFrames(play);
        for (std::int16_t frame = 1; frame < last; ++frame) {
            const PlayedStep step = playedStep(play, frame, last);
            EXPECT_LE(step.ticks, 200) << entry.path().filename() << ", frame " << frame;
            EXPECT_LE(step.longest, 4.5) << entry.path().filename() << ", frame " << frame;
        }
    }
}

} // namespace
} // namespace zeltrona::animation
