// What the worst plays from anywhere cost per byte, against an ordinary heavy play: opening it and reading
// its frames, a redraw, a tick, and the memory that a loaded play takes. The ordinary play has as many bytes
// and wavy (dribble) lines only, from end to end of a whole court in every frame: of what a coach draws they
// are the dearest byte for byte. It is redrawn and ticks once for each of its frames, which are alike.

#include "animation/draw_animation.h"
#include "animation/prepare_step.h"
#include "animation/step_players.h"
#include "assets/resources.h"
#include "bench/heavy_board.h"
#include "bench/hostile_play.h"
#include "bench/ratio_report.h"
#include "document/frame_store.h"
#include "platform/program_fonts.h"
#include "render/redraw.h"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <malloc.h>
#include <memory>

using namespace zeltrona;

namespace {

constexpr std::size_t kSize = 16'000;
constexpr std::size_t kMemorySize = 1'000'000;
constexpr double kLimit = 20.0;

class StillClock : public animation::AnimTimer {
    void startTicks() override {}
    void stopTicks() override {}
};

const render::BoardArt& art() {
    static const render::BoardArt loaded = render::loadBoardArt();
    return loaded;
}

/// A play on the disk, loaded, with its board and the first step of its playback.
class OpenedPlay {
public:
    explicit OpenedPlay(const std::string& bytes)
        : m_path(m_folder.filePath(QStringLiteral("play.zpf")).toStdString()), m_play(m_path) {
        std::ofstream(m_path, std::ios::binary) << bytes;
        document::loadConfig(m_play, m_session, m_frame);
        std::string font;
        document::readFontConfig(m_play, font, m_session.fontCharset);
        document::loadFrame(m_play, m_session, m_frame, 1);
        m_session.showCurves = -1;
        const QSize size = render::boardSizeOf(m_session.court);
        m_pic = std::make_unique<render::BoardSurface>(size.width(), size.height());
        m_board = std::make_unique<render::Board>(render::Board{*m_pic, art()});
        m_set.animFrame = 1;
        m_set.animLastFrame = 2;
        StillClock clock;
        animation::prepareAnimationStep(m_set, m_play, m_frame.triangles, clock);
    }

    std::size_t size() const { return m_play.bytes().size(); }
    std::size_t frames() const { return static_cast<std::size_t>(document::countFrames(m_play)); }
    std::size_t load() const {
        const document::PlayFile play(m_path);
        document::Session session;
        document::FrameRecords frame;
        document::loadConfig(play, session, frame);
        std::size_t lines = 0;
        const std::int16_t count = document::countFrames(play);
        for (std::int16_t n = 1; n <= count; ++n) {
            document::loadFrame(play, session, frame, n);
            lines += frame.lines.size();
        }
        return lines;
    }
    void redraw() { render::redrawBoard(*m_board, {m_session, m_frame}, 0, 0); }
    void tick() {
        m_set.animTick = 1;
        animation::stepPlayers(m_set);
        animation::drawAnimationStep(*m_board, {m_set, m_session, m_frame});
    }

private:
    QTemporaryDir m_folder;
    std::string m_path;
    document::PlayFile m_play;
    document::Session m_session;
    document::FrameRecords m_frame;
    animation::PlaybackSet m_set;
    std::unique_ptr<render::BoardSurface> m_pic;
    std::unique_ptr<render::Board> m_board;
};

/// Frames of the wavy board until the play has `size` bytes.
std::string ordinaryPlay(std::size_t size) {
    bench::WavyBoard wavy;
    const QTemporaryDir folder;
    document::PlayFile play(folder.filePath(QStringLiteral("play.zpf")).toStdString());
    play.writeString("Config", "court", std::to_string(wavy.session.court));
    play.writeString("Config", "line", std::to_string(wavy.session.lineWidth));
    play.writeString("Config", "colorLine", "8388608");
    for (wavy.session.currFrame = 1; play.bytes().size() < size; ++wavy.session.currFrame) {
        document::saveFrame(play, wavy.session, wavy.frame, wavy.session.currFrame, false);
    }
    return play.bytes();
}

/// Processor time of this thread: what else the machine does leaves the ratios alone.
double threadSeconds() {
    timespec now{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// Three benchmarks: the play read once, its board redrawn and its clock ticked `times` over.
void measure(const std::string& name, const std::shared_ptr<OpenedPlay>& play, std::size_t times) {
    const auto repeated = [play](std::size_t count, auto act) {
        return [play, count, act](benchmark::State& state) {
            for (auto step : state) {
                const double begin = threadSeconds();
                for (std::size_t i = 0; i < count; ++i) {
                    act(*play);
                }
                state.SetIterationTime(threadSeconds() - begin);
            }
        };
    };
    const auto add = [&](const char* act, const auto& body) {
        benchmark::RegisterBenchmark((std::string(act) + "-of-" + name).c_str(), body)
            ->Unit(benchmark::kMillisecond)
            ->UseManualTime()
            ->Repetitions(3);
    };
    add("load", repeated(1, [](OpenedPlay& it) { benchmark::DoNotOptimize(it.load()); }));
    add("redraw", repeated(times, [](OpenedPlay& it) { it.redraw(); }));
    add("tick", repeated(times, [](OpenedPlay& it) { it.tick(); }));
}

/// Bytes of memory to a byte of the file, for the play that takes most.
void reportMemory() {
    double most = 0;
    std::string name;
    for (const bench::HostilePlay& hostile : bench::hostilePlays(kMemorySize)) {
        const QTemporaryDir folder;
        const std::string path = folder.filePath(QStringLiteral("play.zpf")).toStdString();
        std::ofstream(path, std::ios::binary) << hostile.bytes;
        const std::size_t before = ::mallinfo2().uordblks + ::mallinfo2().hblkhd;
        const document::PlayFile play(path);
        document::Session session;
        document::FrameRecords frame;
        document::loadConfig(play, session, frame);
        document::loadFrame(play, session, frame, 1);
        const std::size_t after = ::mallinfo2().uordblks + ::mallinfo2().hblkhd;
        const double share = static_cast<double>(after - before) / static_cast<double>(hostile.bytes.size());
        if (share > most) {
            most = share;
            name = hostile.name;
        }
    }
    std::printf("most memory to a byte of the file: %s\nratio hostile-memory-to-file %.3f %.3f\n",
                name.c_str(), most, kLimit);
}

} // namespace

int main(int count, char** arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QGuiApplication application(count, arguments);
    assets::initResources();
    platform::useProgramFonts();
    const auto ordinary = std::make_shared<OpenedPlay>(ordinaryPlay(kSize));
    measure("ordinary-play", ordinary, ordinary->frames());
    std::vector<bench::Ratio> ratios;
    for (const bench::HostilePlay& hostile : bench::hostilePlays(kSize)) {
        const auto play = std::make_shared<OpenedPlay>(hostile.bytes);
        measure(hostile.name, play, 1);
        const double limit =
            kLimit * static_cast<double>(play->size()) / static_cast<double>(ordinary->size());
        for (const std::string act : {"load-of-", "redraw-of-", "tick-of-"}) {
            ratios.push_back({act + hostile.name, act + hostile.name, act + "ordinary-play", limit});
        }
    }
    const int result = bench::runWithRatios(count, arguments, ratios);
    reportMemory();
    return result;
}
