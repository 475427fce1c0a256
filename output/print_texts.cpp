#include "output/print_texts.h"

#include "document/code_page.h"
#include "document/frame_store.h"
#include "document/user_texts.h"

#include <algorithm>
#include <string>

namespace zeltrona::output {
namespace {

using document::TextBuffer;

std::string noteOf(const document::PlayFile& play, int frame) {
    return document::readNote(play, static_cast<std::int16_t>(frame));
}

std::vector<std::string> piecesOf(const std::string& heading, std::int16_t charset) {
    std::vector<std::string> pieces;
    std::size_t begin = 0;
    while (!heading.empty() && begin <= heading.size()) {
        const std::size_t mark = std::min(heading.find(document::kBreakMark, begin), heading.size());
        pieces.push_back(document::toUtf8(std::string_view(heading).substr(begin, mark - begin), charset));
        begin = mark + 1;
    }
    return pieces;
}

} // namespace

void readPrintTexts(const document::PlayFile& play, PrintJob& job) {
    std::string face = "Arial";
    std::int16_t charset = 238;
    document::readFontConfig(play, face, charset);
    job.font.name = document::toUtf8(face, charset);
    job.font.charset = charset;
    job.title = document::toUtf8(document::readTitle(play), charset);
    job.heading = piecesOf(document::readHead(play), charset);
    job.notes.clear();
    for (int frame = 1; frame <= job.frames; ++frame) {
        job.notes.push_back(document::toUtf8(noteOf(play, frame), charset));
    }
}

void readReportTexts(const document::PlayFile& play, Report& report) {
    std::string face = "Arial";
    report.charset = 238;
    document::readFontConfig(play, face, report.charset);
    report.title = document::readTitle(play, TextBuffer::Note);
    report.heading = document::readHead(play, TextBuffer::Note);
    report.notes.clear();
    for (int frame = 1; frame <= report.frames; ++frame) {
        report.notes.push_back(noteOf(play, frame));
    }
}

} // namespace zeltrona::output
