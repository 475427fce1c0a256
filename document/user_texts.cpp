#include "document/user_texts.h"

#include "document/frame_keys.h"
#include "document/name_match.h"
#include "document/vendor.h"

namespace zeltrona::document {

namespace {

std::string header() {
    return "       Zeltrona        \r\n  " + std::string(kWebAddress)
           + "   \r\n ZQ  Script  Generator  \r\n\r\n========================\r\n\r\n";
}

/// The text with its CR LF pairs as `pair` and other line ends as blanks.
std::string onOneLine(std::string_view text, char pair) {
    std::string line;
    line.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text.substr(at, 2) == "\r\n") {
            line.push_back(pair);
            ++at;
        } else {
            line.push_back(isLineEnd(text[at]) ? ' ' : text[at]);
        }
    }
    return line;
}

} // namespace

std::string withBreakMarks(std::string_view text) {
    return onOneLine(text, kBreakMark);
}

std::string withLineBreaks(std::string_view stored) {
    std::string text;
    for (const char c : stored) {
        if (c == kBreakMark) {
            text.append("\r\n");
        } else {
            text.push_back(c);
        }
    }
    return text;
}

std::string readTitle(const PlayFile& play, TextBuffer buffer) {
    return readText(play, kConfigSection, kTitleKey, buffer);
}

std::string readHead(const PlayFile& play, TextBuffer buffer) {
    return readText(play, kConfigSection, kHeadKey, buffer);
}

WriteResult writeTitle(PlayFile& play, std::string_view title, std::string_view head) {
    WriteBatch batch(play);
    play.writeText(kConfigSection, kTitleKey, onOneLine(title, ' '));
    play.writeText(kConfigSection, kHeadKey, withBreakMarks(head));
    return batch.commit();
}

std::string readNote(const PlayFile& play, std::int16_t frame) {
    return readText(play, kConfigSection, noteKey(frame), TextBuffer::Note);
}

WriteResult writeNote(PlayFile& play, std::int16_t frame, std::string_view text) {
    return play.writeText(kConfigSection, noteKey(frame), onOneLine(text, ' '));
}

WriteResult writePlayHeader(PlayFile& play) {
    return play.replaceAll(header());
}

} // namespace zeltrona::document
