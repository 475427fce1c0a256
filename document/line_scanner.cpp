#include "document/line_scanner.h"

#include <algorithm>

namespace zeltrona::document {
namespace {

std::size_t findFrom(std::string_view text, char wanted, std::size_t from) {
    return std::min(text.find(wanted, from), text.size());
}

} // namespace

LineScanner::LineScanner(std::string_view text)
    : m_text(text), m_nextCr(findFrom(text, '\r', 0)), m_nextLf(findFrom(text, '\n', 0)) {}

TextLine LineScanner::next() {
    const std::size_t stop = std::min(m_nextCr, m_nextLf);
    std::size_t after = stop;
    if (stop < m_text.size()) {
        const bool isPair = m_nextCr == stop && m_nextLf == stop + 1 && m_nextLf < m_text.size();
        after = isPair ? stop + 2 : stop + 1;
    }
    const TextLine line{m_text.substr(m_at, stop - m_at), m_text.substr(stop, after - stop)};
    m_at = after;
    if (m_nextCr < after) {
        m_nextCr = findFrom(m_text, '\r', after);
    }
    if (m_nextLf < after) {
        m_nextLf = findFrom(m_text, '\n', after);
    }
    return line;
}

} // namespace zeltrona::document
