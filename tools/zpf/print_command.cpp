#include "document/code_page.h"
#include "document/frame_store.h"
#include "document/user_texts.h"
#include "output/print_play.h"
#include "tools/zpf/commands.h"
#include "tools/zpf/number_ranges.h"
#include "tools/zpf/output_target.h"
#include "tools/zpf/play_desk.h"
#include "tools/zpf/progress_line.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPrinter>

#include <array>
#include <optional>

namespace zeltrona::zpf {

namespace {

constexpr std::array kOptions{
    OptionSpec{'o', "output", "WHERE",
               "a folder, . when not given: each play gets WHERE/NAME.pdf;\n"
               "for one play also the file itself, WHERE.pdf; folders are made if need be"},
    OptionSpec{'l', "layout", "LAYOUT", "big (the default) or small pictures"},
    OptionSpec{'p', "pages", "RANGE", "pages to print, as 2, 1-3 or 2-; all when not given"},
    OptionSpec{'\0', "paper", "SIZE", "a4 (the default) or letter"},
};
constexpr CommandSpec kSpec{"print", "PLAY...",
                            "Print plays to PDF files, in either page layout\n"
                            "Writes over what is there.",
                            kOptions};

struct PrintWishes {
    output::PrintMode mode = output::PrintMode::BigPictures;
    QPageSize::PageSizeId paper = QPageSize::A4;
    std::string pages; ///< as parseRanges takes it
};

/// A complaint about the wishes; empty when they make sense.
std::string readWishes(const Arguments& arguments, PrintWishes& wishes) {
    const std::string layout = arguments.valueOf("layout", "big");
    const std::string paper = arguments.valueOf("paper", "a4");
    wishes.pages = arguments.valueOf("pages", "1-");
    if (layout != "big" && layout != "small") {
        return "the layout is big or small";
    }
    if (paper != "a4" && paper != "letter") {
        return "the paper is a4 or letter";
    }
    const auto ranges = parseRanges(wishes.pages, 1);
    if (!ranges || ranges->size() != 1) {
        return "\"" + wishes.pages + "\" is no range of pages";
    }
    wishes.mode = layout == "small" ? output::PrintMode::SmallPictures : output::PrintMode::BigPictures;
    wishes.paper = paper == "letter" ? QPageSize::Letter : QPageSize::A4;
    return {};
}

QString fileOf(const OutputTarget& target, const QString& play) {
    return target.isFile() ? target.name()
                           : QDir(target.name()).filePath(OutputTarget::baseOf(play) + ".pdf");
}

QString titleOf(const document::PlayFile& play, std::int16_t charset) {
    return QString::fromStdString(document::toUtf8(document::readTitle(play), charset));
}

std::string printPlay(PlayDesk& desk, const QString& file, const PrintWishes& wishes) {
    const output::FrameWalk& walk = desk.walk();
    const int pages = output::PageCtn(document::countFrames(walk.play), wishes.mode, walk.session.court);
    const NumberRange range = parseRanges(wishes.pages, pages)->front();
    if (range.first > pages) {
        return "has only " + std::to_string(pages) + (pages == 1 ? " page" : " pages");
    }
    if (std::string reason = OutputTarget::makeFolder(QFileInfo(file).absolutePath()); !reason.empty()) {
        return reason;
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    printer.setPageSize(QPageSize(wishes.paper));
    printer.setCreator(QStringLiteral("Zeltrona"));
    printer.setDocName(titleOf(walk.play, walk.session.fontCharset));
    const QImage logo(QStringLiteral(":/art/logo_export.png"));
    return output::printPages(desk.walk(), printer, wishes.mode, {range.first, range.last, 1},
                              QGuiApplication::font(), logo)
               ? ""
               : QFile::encodeName(file).toStdString() + ": cannot be written";
}

ExitCode run(const Arguments& arguments, Streams streams) {
    PrintWishes wishes;
    OutputTarget target(arguments, {".pdf"});
    const std::string fault = readWishes(arguments, wishes);
    if (!fault.empty() || !target.fault().empty()) {
        return usageFault(kSpec, streams, fault.empty() ? target.fault() : fault);
    }
    const render::BoardArt art = render::loadBoardArt();
    ProgressLine progress(streams);
    return forEachPlay(kSpec, arguments, streams, [&](const std::string& path) -> std::string {
        const QString play = QFile::decodeName(path.c_str());
        PlayDesk desk(path, art);
        if (desk.frames() < 1) {
            return "holds no frame";
        }
        if (std::string reason = target.claim(play); !reason.empty()) {
            return reason;
        }
        desk.walk().progress = [&](int frame, int frames) { progress.show(path, frame, frames); };
        return printPlay(desk, fileOf(target, play), wishes);
    });
}

} // namespace

Command printCommand() {
    return {kSpec, run};
}

} // namespace zeltrona::zpf
