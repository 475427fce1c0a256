// Pages and reports of any texts on any paper: every frame stands on a page once and in order, every picture
// of the report is made once, no line is lost, and wrapped text is the text without some of its blanks.
//
// Input: court, layout, frames, width and height (a byte each), then texts parted by line feeds: title,
// heading, notes.

#include "fuzz/check.h"
#include "output/page_layout.h"
#include "output/report_lines.h"
#include "output/wrap_text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

using namespace zeltrona::output;

namespace {

class PlainMeasure : public PageMeasure {
public:
    double textWidth(std::string_view text, const PageFont& font) const override {
        return static_cast<double>(text.size()) * font.size / 2.0;
    }
    double textHeight(std::string_view, const PageFont& font) const override { return font.size; }
    double windowTextWidth(std::string_view text) const override {
        return static_cast<double>(text.size()) * 6.0;
    }
};

std::vector<std::string> textsOf(std::string_view bytes) {
    std::vector<std::string> texts(1);
    for (const char byte : bytes) {
        if (byte == '\n') {
            texts.emplace_back();
        } else {
            texts.back() += byte;
        }
    }
    texts.resize(std::max<std::size_t>(texts.size(), 2));
    return texts;
}

std::string withoutBlanks(std::string text) {
    std::erase(text, ' ');
    return text;
}

void checkWrap(const std::string& text, double width) {
    std::string joined;
    for (const std::string& line :
         wrapText([](std::string_view piece) { return static_cast<double>(piece.size()); }, width, text)) {
        joined += line;
    }
    FUZZ_CHECK(withoutBlanks(joined) == withoutBlanks(text));
}

void checkPages(const PrintJob& job) {
    const std::vector<Page> pages = layOutPages(job, PlainMeasure());
    FUZZ_CHECK(pages.size() == static_cast<std::size_t>(PageCtn(job.frames, job.mode, job.court)));
    int next = 1;
    for (const Page& page : pages) {
        for (const PageOp& op : page.ops) {
            if (const auto* picture = std::get_if<PictureOp>(&op)) {
                FUZZ_CHECK(picture->frame == next);
                ++next;
            }
        }
    }
    FUZZ_CHECK(next == job.frames + 1);
}

void checkReport(const Report& report) {
    int next = 1;
    for (const ReportStep& step : reportSteps(report)) {
        if (const auto* frame = std::get_if<SaveFrame>(&step)) {
            FUZZ_CHECK(frame->frame == next);
            ++next;
        }
    }
    FUZZ_CHECK(next == report.frames + 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 5) {
        return 0;
    }
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 5, size - 5);
    const std::vector<std::string> texts = textsOf(bytes);
    PrintJob job;
    job.court = static_cast<std::int8_t>(data[0]);
    job.mode = data[1] % 2 == 0 ? PrintMode::BigPictures : PrintMode::SmallPictures;
    job.frames = data[2];
    job.width = data[3] * 16.0;
    job.height = data[4] * 16.0;
    job.title = texts[0];
    job.heading = {texts[1], texts.back()};
    job.notes.assign(texts.begin() + 2, texts.end());
    checkPages(job);
    checkWrap(texts[0], data[3]);

    Report report;
    report.court = job.court;
    report.frames = job.frames;
    report.charset = data[4];
    report.title = texts[0];
    report.heading = texts[1];
    report.notes = job.notes;
    report.wrapNote = [](const std::string& note) { return std::vector<std::string>{note, note}; };
    checkReport(report);
    return 0;
}
