#include "bench/ratio_report.h"
#include "bench/sample_play.h"
#include "document/frame_store.h"
#include "output/board_picture.h"
#include "output/picture_export.h"
#include "output/print_play.h"
#include "output/web_report.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <sys/resource.h>

namespace zeltrona {
namespace {

constexpr std::int16_t kFrames = 200;

/// A play on the disk with everything that an output borrows.
struct Desk {
    explicit Desk(int frames) : play(store(folder, frames)) {
        document::loadConfig(play, session, records);
        const QSize size = render::boardSizeOf(session.court);
        pic.resize(size.width(), size.height());
    }
    static std::string store(const QTemporaryDir& folder, int frames) {
        const QString path = folder.filePath(QStringLiteral("play.zpf"));
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(QByteArray::fromStdString(bench::samplePlay(frames)));
        return path.toStdString();
    }

    QTemporaryDir folder;
    document::PlayFile play;
    document::Session session;
    document::FrameRecords records;
    render::BoardSurface pic;
    render::BoardArt art = render::loadBoardArt();
    render::Board board{pic, art};
    output::FrameWalk walk{play, session, records, board};
};

void exportFrames(benchmark::State& state) {
    Desk desk(kFrames);
    const QString folder = desk.folder.path() + u'/';
    for (auto _ : state) {
        for (std::int16_t frame = 1; frame <= kFrames; ++frame) {
            benchmark::DoNotOptimize(output::exportFrameImage(desk.walk, frame, folder));
        }
    }
}
BENCHMARK(exportFrames)->Unit(benchmark::kMillisecond);

/// Load and redraw of the same frames, and a plain write of the same bytes.
void loadRedrawAndPlainWrite(benchmark::State& state) {
    Desk desk(kFrames);
    const QString folder = desk.folder.path() + u'/';
    output::exportFrameImage(desk.walk, 1, folder);
    QFile first(folder + QStringLiteral("img1.bmp"));
    first.open(QIODevice::ReadOnly);
    const QByteArray bytes = first.readAll();
    for (auto _ : state) {
        for (std::int16_t frame = 1; frame <= kFrames; ++frame) {
            output::prepareFramePicture(desk.walk, frame);
            std::FILE* file = std::fopen(
                (desk.folder.path().toStdString() + "/plain" + std::to_string(frame)).c_str(), "wb");
            std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), file);
            std::fclose(file);
        }
    }
}
BENCHMARK(loadRedrawAndPlainWrite)->Unit(benchmark::kMillisecond);

double peakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

/// Peak memory after a report and a document of so many frames; it must not follow the number of frames.
void reportOfFrames(benchmark::State& state) {
    Desk desk(static_cast<int>(state.range(0)));
    const QString page = desk.folder.filePath(QStringLiteral("play.html"));
    for (auto _ : state) {
        output::writeWebReport(desk.walk, page, QImage(173, 53, QImage::Format_RGB32));
    }
    state.counters["peakMB"] = peakMegabytes();
}
BENCHMARK(reportOfFrames)->Arg(100)->Arg(1000)->Iterations(1)->Unit(benchmark::kMillisecond);

void pagesOfFrames(benchmark::State& state) {
    Desk desk(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(desk.folder.filePath(QStringLiteral("play.pdf")));
        const int pages = output::PageCtn(static_cast<std::int16_t>(state.range(0)),
                                          output::PrintMode::BigPictures, desk.session.court);
        output::printPages(desk.walk, printer, output::PrintMode::BigPictures, {1, pages, 1}, QFont(),
                           QImage());
        state.counters["pages"] = pages;
    }
    state.counters["peakMB"] = peakMegabytes();
}
BENCHMARK(pagesOfFrames)->Arg(100)->Arg(1000)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zeltrona

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const std::array<zeltrona::bench::Ratio, 1> ratios{
        {{"export_of_frames", "exportFrames", "loadRedrawAndPlainWrite", 2.0}}};
    return zeltrona::bench::runWithRatios(argc, argv, ratios);
}
