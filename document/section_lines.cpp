#include "document/section_lines.h"

#include "document/line_scanner.h"

#include <algorithm>
#include <utility>

namespace zeltrona::document {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

bool endsLine(std::string_view text) {
    return !text.empty() && isLineEnd(text.back());
}

std::string keyLine(std::string_view indent, std::string_view key, std::string_view value) {
    std::string line;
    line.reserve(indent.size() + key.size() + value.size() + 1 + kLineEnd.size());
    return line.append(indent).append(key).append("=").append(value);
}

} // namespace

std::string_view TextStore::keep(std::string text) {
    m_size += text.size();
    return m_texts.emplace_back(std::move(text));
}

std::optional<KeyParts> splitKeyLine(std::string_view line) {
    std::size_t start = 0;
    while (start < line.size() && isBlank(line[start])) {
        ++start;
    }
    if (start == line.size() || line[start] == ';' || line[start] == '[') {
        return std::nullopt;
    }
    const std::size_t split = line.find('=', start);
    if (split == std::string_view::npos) {
        return std::nullopt;
    }
    return KeyParts{line.substr(0, start), trimBlanks(line.substr(start, split - start)),
                    trimBlanks(line.substr(split + 1))};
}

std::string_view headerName(std::string_view sectionText) {
    std::size_t start = 0;
    while (isBlank(sectionText[start])) {
        ++start;
    }
    std::size_t end = ++start;
    while (end < sectionText.size() && sectionText[end] != ']' && !isLineEnd(sectionText[end])) {
        ++end;
    }
    return trimBlanks(sectionText.substr(start, end - start));
}

std::optional<std::string_view> glanceAtFirstKey(std::string_view sectionText, std::string_view key) {
    constexpr std::size_t kFarEnough = 200;
    const std::string_view start = sectionText.substr(0, kFarEnough);
    const std::size_t headerEnd = start.find_first_of("\r\n");
    if (headerEnd == std::string_view::npos) {
        return std::nullopt;
    }
    const std::size_t line = headerEnd + (start.substr(headerEnd).starts_with("\r\n") ? 2 : 1);
    const std::size_t lineEnd = start.find_first_of("\r\n", line);
    if (lineEnd == std::string_view::npos) {
        return std::nullopt;
    }
    const std::optional<KeyParts> parts = splitKeyLine(start.substr(line, lineEnd - line));
    return parts && sameName(parts->name, key) ? std::optional(parts->value) : std::nullopt;
}

SectionLines::KeyPiece SectionLines::makePiece(std::string_view text, std::size_t lineLength) {
    return {text.data(), static_cast<std::uint32_t>(text.size()), static_cast<std::uint32_t>(lineLength)};
}

SectionLines::SectionLines(std::string_view sectionText) {
    LineScanner scanner(sectionText);
    scanner.next();
    std::size_t behindKeys = scanner.position();
    while (!scanner.atEnd()) {
        const std::string_view line = scanner.next().text;
        if (const std::optional<KeyParts> parts = splitKeyLine(line)) {
            behindKeys = scanner.position();
            if (noteName(parts->name)) {
                m_keys.push_back(makePiece(line, line.size()));
            }
        }
    }
    stretchPieces(sectionText.substr(0, behindKeys));
    m_tail = sectionText.substr(behindKeys);
}

void SectionLines::stretchPieces(std::string_view textOfKeys) {
    const char* end = textOfKeys.data() + textOfKeys.size();
    for (std::size_t at = m_keys.size(); at > 0; --at) {
        KeyPiece& piece = m_keys[at - 1];
        piece.size = static_cast<std::uint32_t>(end - piece.data);
        end = piece.data;
    }
    m_head = {textOfKeys.data(), static_cast<std::size_t>(end - textOfKeys.data())};
}

std::uint32_t SectionLines::find(std::string_view key) const {
    return m_index.find(key, [this](std::uint32_t place) { return nameAt(place); });
}

bool SectionLines::noteName(std::string_view key) {
    return m_index.addNew(key, static_cast<std::uint32_t>(m_keys.size()),
                          [this](std::uint32_t place) { return nameAt(place); });
}

std::string_view SectionLines::nameAt(std::uint32_t place) const {
    const std::string_view line = m_keys[place].line();
    return trimBlanks(line.substr(0, line.find('=')));
}

std::optional<std::string_view> SectionLines::value(std::string_view key) const {
    const std::uint32_t place = find(key);
    if (place == NameIndex::kNone) {
        return std::nullopt;
    }
    const std::string_view line = m_keys[place].line();
    return trimBlanks(line.substr(line.find('=') + 1));
}

SectionLines::Edit SectionLines::write(std::string_view key, std::string_view value, TextStore& store) {
    const std::uint32_t place = find(key);
    if (place != NameIndex::kNone) {
        return replaceValue(m_keys[place], value, store);
    }
    addLine(key, value, store);
    return Edit::Done;
}

SectionLines::Edit SectionLines::replaceValue(KeyPiece& piece, std::string_view value, TextStore& store) {
    const KeyParts parts = *splitKeyLine(piece.line());
    std::string line = keyLine(parts.indent, parts.name, value);
    if (parts.value == value || line == piece.line()) {
        return Edit::None;
    }
    const std::size_t length = line.size();
    line.append(piece.behindLine().empty() ? kLineEnd : piece.behindLine());
    piece = makePiece(store.keep(std::move(line)), length);
    return Edit::Done;
}

void SectionLines::addLine(std::string_view key, std::string_view value, TextStore& store) {
    endLineAheadOfTail(store);
    std::string line = keyLine({}, key, value);
    const std::size_t length = line.size();
    line.append(kLineEnd);
    if (splitKeyLine(line)) {
        noteName(key);
        m_keys.push_back(makePiece(store.keep(std::move(line)), length));
    } else {
        m_tail = store.keep(line.append(m_tail));
    }
}

void SectionLines::endLineAheadOfTail(TextStore& store) {
    if (m_keys.empty()) {
        if (!endsLine(m_head)) {
            m_head = store.keep(std::string(m_head).append(kLineEnd));
        }
        return;
    }
    KeyPiece& last = m_keys.back();
    if (!endsLine(last.text())) {
        const std::size_t length = last.lineLength;
        last = makePiece(store.keep(std::string(last.text()).append(kLineEnd)), length);
    }
}

std::optional<std::string> SectionLines::textWithout(std::string_view key) const {
    const std::uint32_t place = find(key);
    if (place == NameIndex::kNone) {
        return std::nullopt;
    }
    std::string text(m_head);
    for (std::uint32_t at = 0; at < m_keys.size(); ++at) {
        std::string_view piece = m_keys[at].text();
        if (at == place) {
            LineScanner scanner(piece);
            scanner.next();
            piece.remove_prefix(scanner.position());
        }
        text.append(piece);
    }
    return text.append(m_tail);
}

void SectionLines::forEachPiece(const std::function<void(std::string_view)>& visit) const {
    visit(m_head);
    for (const KeyPiece& piece : m_keys) {
        visit(piece.text());
    }
    visit(m_tail);
}

} // namespace zeltrona::document
