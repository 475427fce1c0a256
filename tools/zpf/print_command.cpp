#include "document/code_page.h"
#include "document/frame_store.h"
#include "document/user_texts.h"
#include "output/print_play.h"
#include "tools/zpf/commands.h"
#include "tools/zpf/counted.h"
#include "tools/zpf/desk_command.h"
#include "tools/zpf/number_ranges.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPrinter>
#include <QTemporaryFile>

#include <array>
#include <optional>

namespace zeltrona::zpf {

namespace {

constexpr std::array kOptions{
    OptionForm{'o', "output", "WHERE",
               "a folder, . when not given: each play gets WHERE/NAME.pdf;\n"
               "for one play also the file itself, WHERE.pdf; folders are made if need be"},
    OptionForm{'l', "layout", "LAYOUT", "big (the default) or small pictures"},
    OptionForm{'p', "pages", "RANGE", "pages to print, as 2, 1-3 or 2-; all when not given"},
    OptionForm{'\0', "paper", "SIZE", "a4 (the default) or letter"},
};
constexpr CommandForm kForm{"print", "PLAY...",
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
    const std::string layout = arguments.wordOf("layout", "big");
    const std::string paper = arguments.wordOf("paper", "a4");
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

/// Prints to a file apart, so that the result is written whole or not at all. No bytes mean that this failed.
QByteArray printedPages(PlayDesk& desk, const NumberRange& range, const PrintWishes& wishes) {
    const output::FrameWalk& walk = desk.walk();
    QTemporaryFile file;
    if (!file.open()) {
        return {};
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file.fileName());
    printer.setPageSize(QPageSize(wishes.paper));
    printer.setCreator(QStringLiteral("Zeltrona"));
    printer.setDocName(titleOf(walk.play, walk.session.fontCharset));
    const QImage logo(QStringLiteral(":/art/logo_export.png"));
    return output::printPages(desk.walk(), printer, wishes.mode, {range.first, range.last, 1},
                              QGuiApplication::font(), logo)
               ? file.readAll()
               : QByteArray();
}

std::string printPlay(PlayDesk& desk, const QString& file, const PrintWishes& wishes,
                      const OutputTarget& target) {
    const output::FrameWalk& walk = desk.walk();
    const int pages = output::PageCtn(document::countFrames(walk.play), wishes.mode, walk.session.court);
    const NumberRange range = parseRanges(wishes.pages, pages)->front();
    if (range.first > pages) {
        return "has only " + counted(static_cast<std::size_t>(pages), "page");
    }
    if (std::string reason = OutputTarget::makeFolder(QFileInfo(file).absolutePath()); !reason.empty()) {
        return reason;
    }
    const QByteArray bytes = printedPages(desk, range, wishes);
    return bytes.isEmpty() ? "the pages cannot be put together in " + QDir::tempPath().toStdString()
                           : target.write(file, bytes);
}

ExitCode run(const Arguments& arguments, Streams streams) {
    PrintWishes wishes;
    OutputTarget target(arguments, {".pdf"});
    const std::string fault = readWishes(arguments, wishes);
    if (!fault.empty() || !target.fault().empty()) {
        return usageFault(kForm, streams, fault.empty() ? target.fault() : fault);
    }
    return forEachDesk(kForm, arguments, streams, target, [&](PlayDesk& desk, const QString& play) {
        return printPlay(desk, fileOf(target, play), wishes, target);
    });
}

} // namespace

Command printCommand() {
    return {kForm, run};
}

} // namespace zeltrona::zpf
