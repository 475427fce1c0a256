#include "output/page_layout.h"

#include "document/number_text.h"
#include "document/session.h"
#include "output/wrap_text.h"

namespace zeltrona::output {
namespace {

using document::isBigCourt;
using document::roundToInt16;

constexpr double kFirstRow = 170;
constexpr double kTitleLeftAtLeast = 130; // the title clears the logo
constexpr LogoOp kLogoSize{0, 30, 130, 40};

int dividedUp(int value, int by) {
    return (value + by - 1) / by;
}

/// Walks down the pages with the state that one row leaves to the next.
class PageWriter {
public:
    PageWriter(const PrintJob& job, const PageMeasure& measure)
        : m_job(job),
          m_measure(measure),
          m_grid(pageGrid(job.mode, job.court)),
          m_metrics(pageMetrics(job.width, job.height, job.mode, job.court)),
          m_pageCount(PageCtn(job.frames, job.mode, job.court)) {}

    std::vector<Page> write() {
        if (m_pageCount == 0) {
            return {};
        }
        m_pages.emplace_back();
        writeHeader();
        const int units = dividedUp(m_job.frames, m_grid.columns) * 2;
        for (int unit = 1; unit <= units; ++unit) {
            writeRow(unit % 2 == 1);
            if (unit == units) {
                writeFooter();
            } else if (unit % m_grid.units == 0) {
                writeFooter();
                m_pages.emplace_back();
                m_y = kFirstRow;
            }
        }
        return std::move(m_pages);
    }

private:
    PageFont font(int size, bool bold) const {
        PageFont result = m_job.font;
        result.size = size;
        result.bold = bold;
        return result;
    }

    void print(double x, double y, std::string text, const PageFont& face) {
        m_pages.back().ops.emplace_back(TextOp{x, y, std::move(text), face});
    }

    MeasureWidth widthIn(const PageFont& face) const {
        return [this, face](std::string_view text) { return m_measure.textWidth(text, face); };
    }

    void writeHeader() {
        m_pages.back().ops.emplace_back(
            LogoOp{static_cast<double>(m_metrics.margin), kLogoSize.y, kLogoSize.width, kLogoSize.height});
        double pen = m_metrics.top;
        if (!m_job.title.empty()) {
            pen = writeTitle(pen);
        }
        writeHeading(pen);
    }

    double writeTitle(double pen) {
        const PageFont face = font(14, true);
        const double x = (m_job.width - m_measure.windowTextWidth(m_job.title)) / 2;
        print(x < kTitleLeftAtLeast ? kTitleLeftAtLeast : x, pen, m_job.title, face);
        return pen + m_measure.textHeight(m_job.title, face);
    }

    void writeHeading(double pen) {
        const PageFont face = font(12, false);
        const double free = m_job.width - 2 * m_metrics.margin;
        for (const std::string& piece : m_job.heading) {
            const double height = m_measure.textHeight(piece, face);
            for (std::string& line : linesOf(piece, free, face)) {
                print(m_metrics.margin, pen, std::move(line), face);
                pen += height + height / 4;
            }
        }
    }

    /// The text as it stands when it is not wider than `width`, wrapped to it otherwise.
    std::vector<std::string> linesOf(const std::string& text, double width, const PageFont& face) const {
        if (m_measure.textWidth(text, face) > width) {
            return wrapText(widthIn(face), width, text);
        }
        return {text};
    }

    double columnX(int column) const {
        return column == 1 ? m_metrics.margin
                           : (m_metrics.picW + m_metrics.margin) * (column - 1) + m_metrics.margin;
    }

    void writeRow(bool pictures) {
        const PageFont face = font(8, false);
        const double lineHeight = roundToInt16(m_measure.textHeight("WWW", face));
        for (int column = 1; column <= m_grid.columns; ++column) {
            if (pictures) {
                writePicture(column);
            } else {
                writeNote(column, face);
            }
        }
        if (pictures) {
            m_y += m_metrics.picH + lineHeight;
        } else {
            m_y += 3 * lineHeight + (m_job.mode == PrintMode::SmallPictures ? 2 * lineHeight : 0);
        }
    }

    void writePicture(int column) {
        if (m_nextPicture > m_job.frames) {
            return;
        }
        m_pages.back().ops.emplace_back(PictureOp{static_cast<std::int16_t>(m_nextPicture), columnX(column),
                                                  m_y, static_cast<double>(m_metrics.picW),
                                                  static_cast<double>(m_metrics.picH)});
        ++m_nextPicture;
    }

    void writeNote(int column, const PageFont& face) {
        if (m_nextNote > m_job.frames) {
            return;
        }
        const std::size_t index = static_cast<std::size_t>(m_nextNote - 1);
        ++m_nextNote;
        if (index >= m_job.notes.size() || m_job.notes[index].empty()) {
            return;
        }
        double y = m_y;
        for (std::string& line : linesOf(m_job.notes[index], m_metrics.picW, face)) {
            const double height = m_measure.textHeight(line, face);
            print(columnX(column), y, std::move(line), face);
            y += height;
        }
    }

    void writeFooter() {
        const PageFont face = font(8, false);
        std::string text =
            "Page " + std::to_string(m_pages.size()) + " of " + std::to_string(int{m_pageCount});
        const double x = (m_job.width - m_measure.windowTextWidth(text)) / 2;
        const double y = m_job.height - 2 * m_measure.textHeight(text, face);
        print(x, y, std::move(text), face);
    }

    const PrintJob& m_job;
    const PageMeasure& m_measure;
    PageGrid m_grid;
    PageMetrics m_metrics;
    std::int16_t m_pageCount;
    std::vector<Page> m_pages;
    double m_y = kFirstRow;
    int m_nextPicture = 1;
    int m_nextNote = 1;
};

double pictureWidth(double width, std::int16_t margin, PrintMode mode, std::int16_t court) {
    const double free = width - 3.0 * margin;
    if (isBigCourt(court)) {
        return mode == PrintMode::BigPictures ? free : free / 2;
    }
    return mode == PrintMode::BigPictures ? free / 2 : free / 2 / 2;
}

} // namespace

PageGrid pageGrid(PrintMode mode, std::int16_t court) {
    if (mode == PrintMode::BigPictures) {
        return {isBigCourt(court) ? 1 : 2, 2, 4};
    }
    return {isBigCourt(court) ? 2 : 3, 3, 6};
}

PageMetrics pageMetrics(double width, double height, PrintMode mode, std::int16_t court) {
    PageMetrics metrics;
    metrics.margin = roundToInt16(width / 100 * 6);
    metrics.top = static_cast<float>(height / 100 * 5);
    metrics.picW = roundToInt16(pictureWidth(width, metrics.margin, mode, court));
    metrics.picH = roundToInt16(metrics.picW * (isBigCourt(court) ? 0.547 : 0.916));
    return metrics;
}

std::int16_t PageCtn(std::int16_t frames, PrintMode mode, std::int16_t court) {
    const PageGrid grid = pageGrid(mode, court);
    const int rows = frames > 0 ? dividedUp(frames, grid.columns) : 0;
    return static_cast<std::int16_t>(dividedUp(rows * 2, grid.units));
}

std::vector<Page> layOutPages(const PrintJob& job, const PageMeasure& measure) {
    return PageWriter(job, measure).write();
}

} // namespace zeltrona::output
