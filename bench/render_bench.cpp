// The redraw of a heavy board against a copy of its pixels and against the same scene in the toolkit's own
// graphics view.

#include "assets/resources.h"
#include "bench/graphics_scene.h"
#include "bench/heavy_board.h"
#include "bench/ratio_report.h"
#include "render/redraw.h"

#include <QApplication>

#include <array>
#include <benchmark/benchmark.h>
#include <cstring>
#include <vector>

using namespace zeltrona;
using namespace zeltrona::render;

namespace {

const BoardArt& art() {
    static const BoardArt loaded = [] {
        assets::initResources();
        return loadBoardArt();
    }();
    return loaded;
}

void copyOfTheBoard(benchmark::State& state) {
    constexpr std::size_t kBytes = 363 * 332 * 4;
    const std::vector<char> from(kBytes, 1);
    std::vector<char> to(kBytes);
    for (auto step : state) {
        std::memcpy(to.data(), from.data(), kBytes);
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(copyOfTheBoard)->Unit(benchmark::kMicrosecond);

void redraw(benchmark::State& state, const bench::HeavyBoard& heavy) {
    BoardSurface pic;
    Board board{pic, art()};
    for (auto step : state) {
        redrawBoard(board, {heavy.session, heavy.frame}, 0, 0);
        benchmark::DoNotOptimize(pic.image().constBits());
    }
}

bench::HeavyBoard boardWithoutLines() {
    bench::HeavyBoard heavy;
    document::resetLines(heavy.frame.lines);
    return heavy;
}

void redrawHeavy(benchmark::State& state) {
    redraw(state, boardWithoutLines());
}
BENCHMARK(redrawHeavy)->Unit(benchmark::kMicrosecond);

void redrawWhiteLines(benchmark::State& state) {
    bench::HeavyBoard heavy = boardWithoutLines();
    heavy.session.useTexture = 1;
    redraw(state, heavy);
}
BENCHMARK(redrawWhiteLines)->Unit(benchmark::kMicrosecond);

void redrawCircles(benchmark::State& state) {
    bench::HeavyBoard heavy = boardWithoutLines();
    heavy.session.bodyType = 0;
    redraw(state, heavy);
}
BENCHMARK(redrawCircles)->Unit(benchmark::kMicrosecond);

void redrawCourtAlone(benchmark::State& state) {
    bench::HeavyBoard heavy = boardWithoutLines();
    heavy.frame = {};
    redraw(state, heavy);
}
BENCHMARK(redrawCourtAlone)->Unit(benchmark::kMicrosecond);

// The first redraw of a board that remembers nothing yet: what opening a play costs.
void redrawHeavyAfresh(benchmark::State& state) {
    const bench::HeavyBoard heavy = boardWithoutLines();
    for (auto step : state) {
        BoardSurface pic;
        Board board{pic, art()};
        redrawBoard(board, {heavy.session, heavy.frame}, 0, 0);
        benchmark::DoNotOptimize(pic.image().constBits());
    }
}
BENCHMARK(redrawHeavyAfresh)->Unit(benchmark::kMicrosecond);

void graphicsViewHeavy(benchmark::State& state) {
    bench::GraphicsBoard board(boardWithoutLines(), art());
    for (auto step : state) {
        benchmark::DoNotOptimize(board.redraw().constBits());
    }
}
BENCHMARK(graphicsViewHeavy)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int count, char** arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(count, arguments);
    const std::array<bench::Ratio, 2> ratios{
        {{"redraw-heavy-to-copy", "redrawHeavy", "copyOfTheBoard", 25.0},
         {"redraw-heavy-to-graphics-view", "redrawHeavy", "graphicsViewHeavy", 1.0}}};
    return bench::runWithRatios(count, arguments, ratios);
}
