#pragma once

#include <cstddef>
#include <string_view>

namespace zeltrona::document {

/// One line of the play.
struct TextLine {
    std::string_view text; ///< without the line end
    std::string_view end;  ///< CR LF, LF, CR, or nothing on a last line without one
};

/// Walks lines that end at CR LF, at LF alone or at CR alone.
/// Cost: each byte is looked at once for each kind of line end, whatever the mixture of the two.
class LineScanner {
public:
    explicit LineScanner(std::string_view text);

    bool atEnd() const { return m_at == m_text.size(); }
    /// Where the next line starts.
    std::size_t position() const { return m_at; }
    /// The next line; there must be one.
    TextLine next();

private:
    std::string_view m_text;
    std::size_t m_at = 0;
    std::size_t m_nextCr = 0; ///< of the first CR and LF not yet passed; the text's size when there is none
    std::size_t m_nextLf = 0;
};

} // namespace zeltrona::document
