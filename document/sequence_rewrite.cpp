#include "document/sequence_rewrite.h"

#include "document/line_scanner.h"
#include "document/name_match.h"
#include "document/number_text.h"

#include <optional>

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

    /// What stands for the line; nothing where it stays.
    std::optional<std::string> renumbered(std::string_view line) {
        if (isNextNote(line)) {
            ++m_nextNote;
            return std::string(kNotes) + std::to_string(m_nextNote - 2)
                   + std::string(line.substr(line.find('=')));
        }
        return renumberedFrame(line);
    }

private:
    bool isNextNote(std::string_view line) const {
        if (!line.starts_with(kNotes)) {
            return false;
        }
        const std::size_t equals = line.find('=');
        return equals != line.npos
               && numericField(line.substr(kNotes.size(), equals - kNotes.size())) == m_nextNote;
    }

    std::optional<std::string> renumberedFrame(std::string_view line) {
        m_renaming = m_renaming || line == m_header;
        if (line == m_header) {
            return headerOf(m_next - 1);
        }
        if (m_renaming && line == m_numberLine) {
            return numberLineOf(m_next - 1);
        }
        if (m_renaming && line == m_followingHeader) {
            expectFrame(m_next + 1);
            return headerOf(m_next - 1);
        }
        return std::nullopt;
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
    std::size_t copied = 0; // lines that stay are copied in runs
    for (LineScanner lines(bytes); !lines.atEnd();) {
        const std::size_t begin = lines.position();
        const TextLine line = lines.next();
        if (const std::optional<std::string> changed = renumbering.renumbered(line.text)) {
            result.append(bytes.substr(copied, begin - copied)).append(*changed);
            copied = begin + line.text.size();
        }
    }
    result.append(bytes.substr(copied));
    if (!result.empty() && !isLineEnd(result.back())) {
        result.append("\r\n");
    }
    return result;
}

} // namespace zeltrona::document
