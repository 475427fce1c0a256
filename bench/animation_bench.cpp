// A tick of playback against a plain copy of the board's pixels.

#include "animation/draw_animation.h"
#include "animation/step_players.h"
#include "assets/resources.h"
#include "bench/ratio_report.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>
#include <cstring>
#include <ctime>
#include <vector>

using namespace zeltrona;
using namespace zeltrona::animation;

namespace {

constexpr int kPlayers = 12;
constexpr int kBalls = 3;

PlayerRec playerAt(int i, float y) {
    PlayerRec player;
    player.x = 10.0F + 25.0F * static_cast<float>(i);
    player.y = y;
    player.txt = std::to_string(i + 4);
    player.angle = static_cast<std::int16_t>(30 * i);
    player.body = static_cast<std::int16_t>(i % 4);
    player.skin = 0x70A0E0;
    return player;
}

std::vector<PlayerRec> rowOf(int count, float y) {
    std::vector<PlayerRec> row;
    for (int i = 0; i < count; ++i) {
        row.push_back(playerAt(i, y));
    }
    return row;
}

/// Both teams and three balls on their way over the parquet, two of the players on paths.
struct Play {
    Play() {
        assets::initResources();
        art = render::loadBoardArt();
        session.court = 1;
        session.courtTexture = 1;
        session.bodyType = 1;
        session.colorOff = 0x2020C0;
        session.colorDef = 0xC06020;
        session.colorOffFont = session.colorDefFont = 0xFFFFFF;
        frame.offPlayers = set.offAnimStart = set.offAnimCur = rowOf(kPlayers, 10);
        frame.defPlayers = set.defAnimStart = set.defAnimCur = rowOf(kPlayers, 40);
        set.ballAnimStart = set.ballAnimCur = rowOf(kBalls, 60);
        set.offAnimEnd = rowOf(kPlayers, 270);
        set.defAnimEnd = rowOf(kPlayers, 240);
        set.ballAnimEnd = rowOf(kBalls, 300);
        set.offAnimEnd[1].x = 300;
        set.defAnimEnd[2].x = 5;
        PathRec path{3, {}};
        path.pts.assign(80, {100.0F, 100.0F});
        set.offAnimPaths = {path};
        set.animStepSize = 3;
    }

    void step() {
        set.animTick = set.animTick >= 75 ? 1 : set.animTick + 1;
        benchmark::DoNotOptimize(stepPlayers(set));
    }

    render::BoardArt art;
    document::Session session;
    document::FrameRecords frame;
    PlaybackSet set;
    render::BoardSurface surface{363, 332};
    render::Board board{surface, art};
};

void boardCopy(benchmark::State& state) {
    Play play;
    const QImage& board = play.surface.image();
    std::vector<unsigned char> copy(static_cast<std::size_t>(board.sizeInBytes()));
    for (auto step : state) {
        std::memcpy(copy.data(), board.constBits(), copy.size());
        benchmark::DoNotOptimize(copy.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(boardCopy)->Unit(benchmark::kMicrosecond);

void animationTick(benchmark::State& state) {
    Play play;
    for (auto step : state) {
        play.step();
        drawAnimationStep(play.board, {play.set, play.session, play.frame});
    }
}
BENCHMARK(animationTick)->Unit(benchmark::kMicrosecond);

double processorSeconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// Against a fixed time, so that only the processor's own time counts: other work on the machine is none of
// its fault.
void stepPlayersAlone(benchmark::State& state) {
    constexpr int kSteps = 1000;
    Play play;
    for (auto round : state) {
        const double before = processorSeconds();
        for (int i = 0; i < kSteps; ++i) {
            play.step();
        }
        state.SetIterationTime((processorSeconds() - before) / kSteps);
    }
}
BENCHMARK(stepPlayersAlone)->Unit(benchmark::kMicrosecond)->UseManualTime()->Iterations(1000);

/// The 5 microseconds that the motion of a tick may take.
void fiveMicroseconds(benchmark::State& state) {
    for (auto step : state) {
        state.SetIterationTime(5e-6);
    }
}
BENCHMARK(fiveMicroseconds)->Unit(benchmark::kMicrosecond)->UseManualTime()->Iterations(10);

} // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    const bench::Ratio promises[] = {
        {"animation-tick-to-memcpy", "animationTick", "boardCopy", 20.0},
        {"step-players-to-5us", "stepPlayersAlone", "fiveMicroseconds", 1.0},
    };
    return bench::runWithRatios(argc, argv, promises);
}
