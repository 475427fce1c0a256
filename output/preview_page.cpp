#include "output/preview_page.h"

#include "output/page_measure.h"
#include "output/page_painter.h"
#include "output/print_play.h"

#include <QPainter>
#include <QPrinter>

namespace zeltrona::output {

QSizeF printerPageSize() {
    return QPrinter(QPrinter::HighResolution).pageRect(QPrinter::Point).size();
}

QImage makePrintPreviewPage(FrameWalk& walk, PrintMode mode, std::int16_t page, double pixelsPerPoint,
                            const QFont& windowFont, const QImage& logo) {
    const QSizeF paper = printerPageSize();
    const PrintJob job = printJobOf(walk.play, walk.session, mode, paper.width(), paper.height());
    const std::vector<Page> pages = layOutPages(job, FontMeasure(windowFont));
    QImage sheet((paper * pixelsPerPoint).toSize(), QImage::Format_RGB32);
    sheet.fill(Qt::white);
    if (page < 1 || static_cast<std::size_t>(page) > pages.size()) {
        return sheet;
    }
    FrameWalker frames(walk, job.frames);
    QPainter painter(&sheet);
    painter.scale(pixelsPerPoint, pixelsPerPoint);
    paintPage(painter, pages[static_cast<std::size_t>(page - 1)], logo,
              [&frames](std::int16_t frame) { return frames.upTo(frame); });
    return sheet;
}

} // namespace zeltrona::output
