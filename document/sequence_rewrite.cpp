#include "document/sequence_rewrite.h"

#include "document/line_scanner.h"
#include "document/name_match.h"
#include "document/number_text.h"

#include <cstring>
#include <optional>
#include <utility>

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

std::string closeFrameGap(std::string bytes, std::int16_t deleted) {
    if (deleted < 1) {
        return bytes;
    }
    Renumbering renumbering(deleted);
    std::size_t kept = 0;   // the length of what is done
    std::size_t copied = 0; // how far of the old text it reaches
    // A number one lower is never longer, so the new text overtakes the scanner at no place.
    const auto keep = [&](std::string_view piece) {
        if (piece.data() != bytes.data() + kept) {
            std::memmove(bytes.data() + kept, piece.data(), piece.size());
        }
        kept += piece.size();
    };
    const std::string_view text = bytes;
    for (LineScanner lines(text); !lines.atEnd();) {
        const std::size_t begin = lines.position();
        const TextLine line = lines.next();
        const std::size_t end = begin + line.text.size();
        if (const std::optional<std::string> changed = renumbering.renumbered(line.text)) {
            keep(text.substr(copied, begin - copied));
            keep(*changed);
            copied = end;
        }
    }
    keep(text.substr(copied));
    bytes.resize(kept);
    if (!bytes.empty() && !isLineEnd(bytes.back())) {
        bytes.append("\r\n");
    }
    return bytes;
}

} // namespace zeltrona::document
