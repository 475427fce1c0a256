#include "output/print_play.h"

#include "document/frame_store.h"
#include "output/page_measure.h"
#include "output/page_painter.h"
#include "output/print_texts.h"
#include "output/whole_pdf.h"
#include "platform/message_box.h"
#include "platform/printer.h"

#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace zeltrona::output {
namespace {

/// Paints pages one after the other on a printer, beginning a new sheet before each but the first.
class SheetPainter {
public:
    explicit SheetPainter(QPrinter& printer)
        : m_printer(printer), m_opened(m_painter.begin(&printer)), m_good(m_opened) {
        const double pixelsPerPoint = printer.resolution() / 72.0;
        if (m_good) {
            m_painter.scale(pixelsPerPoint, pixelsPerPoint);
        }
    }

    bool paint(const Page& page, const QImage& logo, const FramePicture& picture) {
        m_good = m_good && (!m_begun || m_printer.newPage());
        m_begun = true;
        if (m_good) {
            paintPage(m_painter, page, logo, picture);
        }
        return m_good;
    }
    /// Whether the printer was opened at all.
    bool opened() const { return m_opened; }
    bool end() { return m_good && m_painter.end() && m_printer.printerState() != QPrinter::Error; }

private:
    QPrinter& m_printer;
    QPainter m_painter;
    bool m_opened;
    bool m_good;
    bool m_begun = false;
};

/// Pages that a print system or a pipe takes are its own affair, those in a file are looked at.
bool reachedTheDisk(const QPrinter& printer) {
    QFile file(printer.outputFileName());
    return printer.outputFormat() != QPrinter::PdfFormat || !QFileInfo(file).isFile()
           || (file.open(QIODevice::ReadOnly) && isWholePdf(file.readAll()));
}

void killDocument(QPrinter& printer) {
    printer.abort();
    if (!printer.outputFileName().isEmpty()) {
        QFile::remove(printer.outputFileName());
    }
}

} // namespace

PrintJob printJobOf(const document::PlayFile& play, const document::Session& session, PrintMode mode,
                    double width, double height) {
    PrintJob job;
    job.width = width;
    job.height = height;
    job.court = session.court;
    job.mode = mode;
    job.frames = document::countFrames(play);
    readPrintTexts(play, job);
    return job;
}

bool printPages(FrameWalk& walk, QPrinter& printer, PrintMode mode, const PrintRange& range,
                const QFont& windowFont, const QImage& logo) {
    const QSizeF paper = printer.pageRect(QPrinter::Point).size();
    const PrintJob job = printJobOf(walk.play, walk.session, mode, paper.width(), paper.height());
    const std::vector<Page> pages = layOutPages(job, FontMeasure(windowFont));
    FrameWalker frames(walk, job.frames);
    SheetPainter sheets(printer);
    const int lastPage = std::min(range.toPage, static_cast<int>(pages.size()));
    bool good = true;
    for (int copy = 0; copy < range.copies && good; ++copy) {
        frames.startAnew();
        for (int page = range.fromPage; page <= lastPage && good; ++page) {
            good = sheets.paint(pages.at(static_cast<std::size_t>(page - 1)), logo,
                                [&frames](std::int16_t frame) { return frames.upTo(frame); });
        }
    }
    good = sheets.end() && good && reachedTheDisk(printer);
    if (!good && sheets.opened()) { // a file that could not be opened is still the old one
        killDocument(printer);
    }
    return good;
}

void printPlay(FrameWalk& walk, QWidget* parent, PrintMode mode, const QImage& logo) {
    const int pages = PageCtn(document::countFrames(walk.play), mode, walk.session.court);
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(QFileInfo(QString::fromStdString(walk.play.path())).completeBaseName());
    platform::PrintChoice choice;
    do {
        choice = platform::showPrinter(parent, printer, {QStringLiteral("Zeltrona Print"), pages});
        if (!choice.accepted) {
            return;
        }
        if (choice.fromPage > choice.toPage) {
            platform::showMessage(parent, QStringLiteral("Select valid page range."), platform::Icon::None);
        }
    } while (choice.fromPage > choice.toPage);
    printPages(walk, printer, mode, {choice.fromPage, choice.toPage, choice.copies}, parent->font(), logo);
}

} // namespace zeltrona::output
