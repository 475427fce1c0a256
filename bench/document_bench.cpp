// The play file against QSettings, GKeyFile and a plain write of the same bytes.

#include "bench/ratio_report.h"
#include "bench/sample_play.h"
#include "document/frame_records.h"
#include "document/frame_store.h"
#include "document/play_file.h"
#include "document/sequence.h"

#include <QSettings>

#include <array>
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <glib.h>
#include <string>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace zeltrona;
using namespace zeltrona::document;

namespace {

constexpr int kFrames = 1000;

// Lies in a folder of the real disk for the whole run.
class PlayOnDisk {
public:
    explicit PlayOnDisk(int frames)
        : m_path(fs::temp_directory_path()
                 / ("zeltrona-bench-" + std::to_string(::getpid()) + "-" + std::to_string(frames) + ".zpf")),
          m_bytes(bench::samplePlay(frames)) {
        std::ofstream(m_path, std::ios::binary) << m_bytes;
    }
    ~PlayOnDisk() {
        std::error_code ignored;
        fs::remove(m_path, ignored);
    }
    PlayOnDisk(const PlayOnDisk&) = delete;
    PlayOnDisk& operator=(const PlayOnDisk&) = delete;

    std::string path() const { return m_path.string(); }
    const std::string& bytes() const { return m_bytes; }
    // A reader that keeps files it has seen takes the file for a new one.
    void touch() const { fs::last_write_time(m_path, fs::last_write_time(m_path) + std::chrono::seconds(1)); }

private:
    fs::path m_path;
    std::string m_bytes;
};

// Each reader opens the file and asks every frame for a key in its middle, so that none can leave a part of
// the file unread.
int askEveryFrame(const std::string& path) {
    const PlayFile play(path);
    int sum = 0;
    for (int frame = 1; frame <= kFrames; ++frame) {
        sum += play.readInt("Frame" + std::to_string(frame), "angledef11", -1);
    }
    return sum;
}

void coldParse(benchmark::State& state) {
    const PlayOnDisk play(kFrames);
    for (auto step : state) {
        benchmark::DoNotOptimize(askEveryFrame(play.path()));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * play.bytes().size()));
}
BENCHMARK(coldParse)->Unit(benchmark::kMillisecond)->UseRealTime();

void coldParseQSettings(benchmark::State& state) {
    const PlayOnDisk play(kFrames);
    for (auto step : state) {
        state.PauseTiming();
        play.touch();
        state.ResumeTiming();
        const QSettings settings(QString::fromStdString(play.path()), QSettings::IniFormat);
        int sum = 0;
        for (int frame = 1; frame <= kFrames; ++frame) {
            sum += settings.value(QStringLiteral("Frame%1/angledef11").arg(frame), -1).toInt();
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(coldParseQSettings)->Unit(benchmark::kMillisecond)->UseRealTime();

void coldParseGKeyFile(benchmark::State& state) {
    const PlayOnDisk play(kFrames);
    for (auto step : state) {
        GKeyFile* const keys = g_key_file_new();
        if (g_key_file_load_from_file(keys, play.path().c_str(), G_KEY_FILE_KEEP_COMMENTS, nullptr)
            == FALSE) {
            state.SkipWithError("GKeyFile refuses the file");
        }
        int sum = 0;
        for (int frame = 1; frame <= kFrames; ++frame) {
            sum += g_key_file_get_integer(keys, ("Frame" + std::to_string(frame)).c_str(), "angledef11",
                                          nullptr);
        }
        benchmark::DoNotOptimize(sum);
        g_key_file_free(keys);
    }
}
BENCHMARK(coldParseGKeyFile)->Unit(benchmark::kMillisecond)->UseRealTime();

void loadOneFrame(benchmark::State& state) {
    const PlayOnDisk disk(static_cast<int>(state.range(0)));
    const PlayFile play(disk.path());
    Session session;
    FrameRecords records;
    const auto frame = static_cast<std::int16_t>(state.range(0) / 2);
    loadFrame(play, session, records, frame);
    for (auto step : state) {
        loadFrame(play, session, records, frame);
        benchmark::DoNotOptimize(records.lines.data());
    }
}
BENCHMARK(loadOneFrame)->Arg(10)->Arg(kFrames)->Unit(benchmark::kMicrosecond);

void storeOneFrame(benchmark::State& state) {
    const PlayOnDisk disk(kFrames);
    PlayFile play(disk.path());
    Session session;
    session.currFrame = kFrames / 2;
    FrameRecords records;
    loadFrame(play, session, records, session.currFrame);
    for (auto step : state) {
        records.offPlayers.front().x =
            records.offPlayers.front().x < 300.0F ? records.offPlayers.front().x + 1 : 0;
        records.balls.front().x = records.offPlayers.front().x;
        const WriteResult result = saveFrame(play, session, records, session.currFrame, false);
        if (!result.ok()) {
            state.SkipWithError(result.reason.c_str());
        }
    }
}
BENCHMARK(storeOneFrame)->Unit(benchmark::kMillisecond)->UseRealTime();

// As the window does it: the play is open and its frames have been counted for the position.
void deleteOneFrame(benchmark::State& state) {
    const PlayOnDisk disk(kFrames);
    const fs::path programFolder = fs::path(disk.path()).parent_path();
    PlayFile play(disk.path());
    Session session;
    FrameRecords records;
    for (auto step : state) {
        state.PauseTiming();
        play.replaceAll(disk.bytes());
        session.currFrame = kFrames / 2;
        benchmark::DoNotOptimize(countFrames(play));
        state.ResumeTiming();
        const WriteResult result = deleteShownFrame(play, session, records, programFolder.string());
        if (!result.ok()) {
            state.SkipWithError(result.reason.c_str());
        }
    }
}
BENCHMARK(deleteOneFrame)->Unit(benchmark::kMillisecond)->UseRealTime();

bool writePlainly(const std::string& path, const std::string& bytes) {
    const std::string beside = path + ".new";
    const int file = ::open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    const bool written = ::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
    const bool flushed = ::fsync(file) == 0;
    ::close(file);
    return written && flushed && ::rename(beside.c_str(), path.c_str()) == 0;
}

void storePlainly(benchmark::State& state) {
    const PlayOnDisk disk(kFrames);
    for (auto step : state) {
        if (!writePlainly(disk.path(), disk.bytes())) {
            state.SkipWithError("cannot write");
        }
    }
}
BENCHMARK(storePlainly)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int count, char** arguments) {
    const std::array ratios = {
        bench::Ratio{"cold-parse-to-QSettings", "coldParse", "coldParseQSettings", 0.2},
        bench::Ratio{"cold-parse-to-GKeyFile", "coldParse", "coldParseGKeyFile", 1.0},
        bench::Ratio{"load-frame-of-1000-to-10", "loadOneFrame/1000", "loadOneFrame/10", 1.1},
        bench::Ratio{"store-frame-to-plain-write", "storeOneFrame", "storePlainly", 1.5},
        bench::Ratio{"delete-frame-to-plain-write", "deleteOneFrame", "storePlainly", 3.0},
    };
    return bench::runWithRatios(count, arguments, ratios);
}
