#include "document/sequence_rewrite.h"

#include "document/line_scanner.h"
#include "document/number_text.h"

namespace zeltrona::document {

namespace {

constexpr std::string_view kNotes = "Notes";

std::string headerOf(std::int32_t frame) {
    return "[Frame" + std::to_string(frame) + "]";
}

std::string numberLineOf(std::int32_t frame) {
    return "frame=" + std::to_string(frame);
}

/// What the sweep remembers from line to line.
class Renumbering {
public:
    explicit Renumbering(std::int16_t deleted) : m_nextNote(deleted + 1) { expectFrame(deleted + 1); }

    void append(std::string_view line, std::string& out) {
        if (isNextNote(line)) {
            out.append(kNotes).append(std::to_string(m_nextNote - 1)).append(line.substr(line.find('=')));
            ++m_nextNote;
        } else {
            appendFrameLine(line, out);
        }
    }

private:
    bool isNextNote(std::string_view line) const {
        const std::size_t equals = line.find('=');
        if (line.substr(0, kNotes.size()) != kNotes || equals == line.npos) {
            return false;
        }
        const std::string_view number = line.substr(kNotes.size(), equals - kNotes.size());
        return numericField(number) == m_nextNote;
    }

    void appendFrameLine(std::string_view line, std::string& out) {
        m_renaming = m_renaming || line == m_header;
        if (line == m_header) {
            out.append(headerOf(m_next - 1));
        } else if (m_renaming && line == m_numberLine) {
            out.append(numberLineOf(m_next - 1));
        } else if (m_renaming && line == m_followingHeader) {
            out.append(m_header);
            expectFrame(m_next + 1);
        } else {
            out.append(line);
        }
    }

    void expectFrame(std::int32_t frame) {
        m_next = frame;
        m_header = headerOf(frame);
        m_numberLine = numberLineOf(frame);
        m_followingHeader = headerOf(frame + 1);
    }

    std::int32_t m_next = 0;
    std::string m_header;
    std::string m_numberLine;
    std::string m_followingHeader;
    std::int32_t m_nextNote;
    bool m_renaming = false;
};

} // namespace

std::string closeFrameGap(std::string_view bytes, std::int16_t deleted) {
    Renumbering renumbering(deleted);
    std::string result;
    result.reserve(bytes.size() + 2);
    for (LineScanner lines(bytes); !lines.atEnd();) {
        const TextLine line = lines.next();
        renumbering.append(line.text, result);
        result.append(line.end.empty() ? std::string_view("\r\n") : line.end);
    }
    return result;
}

} // namespace zeltrona::document
