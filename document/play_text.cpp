#include "document/play_text.h"

#include "document/line_scanner.h"

#include <algorithm>
#include <utility>

namespace zeltrona::document {
namespace {

bool hasLineEnd(std::string_view text) {
    return text.find_first_of("\r\n") != std::string_view::npos;
}

// Whether a line made of the key is a key line of this very name.
bool readsBackAsKey(std::string_view key) {
    return key == trimBlanks(key) && key.find_first_of("=\r\n") == std::string_view::npos
           && !key.starts_with(';') && !key.starts_with('[');
}

bool readsBackAsSection(std::string_view section) {
    return section == trimBlanks(section) && section.find_first_of("]\r\n") == std::string_view::npos;
}

// The start of the line if nothing but blanks stands between it and `at`; npos otherwise.
std::size_t lineStartIfFirst(std::string_view text, std::size_t at) {
    while (at > 0 && isBlank(text[at - 1])) {
        --at;
    }
    return at == 0 || isLineEnd(text[at - 1]) ? at : std::string_view::npos;
}

// Brackets are rare in a play, so headers are looked for by theirs and not line by line.
std::size_t nextHeader(std::string_view text, std::size_t from) {
    for (std::size_t at = text.find('[', from); at != std::string_view::npos; at = text.find('[', at + 1)) {
        const std::size_t start = lineStartIfFirst(text, at);
        if (start != std::string_view::npos && start >= from) {
            return start;
        }
    }
    return std::string_view::npos;
}

// Whether the second text follows the first in memory.
bool isFollowedBy(std::string_view first, std::string_view second) {
    return first.data() + first.size() == second.data();
}

std::string commentsOf(std::string_view sectionText) {
    std::string comments;
    LineScanner scanner(sectionText);
    while (!scanner.atEnd()) {
        const TextLine line = scanner.next();
        if (trimBlanks(line.text).starts_with(';')) {
            comments.append(line.text).append(line.end);
        }
    }
    return comments;
}

} // namespace

PlayText::PlayText(std::string bytes)
    : m_store(std::make_shared<TextStore>()),
      m_index(std::make_shared<NameIndex>()),
      m_sizeRead(bytes.size()) {
    readStretches(m_store->keep(std::move(bytes)));
}

auto PlayText::nameAt() const {
    return [this](std::uint32_t place) { return headerName(m_stretches[place].text); };
}

void PlayText::readStretches(std::string_view text) {
    std::size_t start = 0;
    std::size_t header = nextHeader(text, 0);
    if (header != 0) {
        start = std::min(header, text.size());
        m_stretches.push_back({text.substr(0, start), nullptr});
    }
    while (header != std::string_view::npos) {
        const std::size_t behindBracket = text.find('[', header) + 1;
        header = nextHeader(text, behindBracket);
        const std::size_t end = std::min(header, text.size());
        addStretch(text.substr(start, end - start));
        start = end;
    }
}

void PlayText::addStretch(std::string_view text) {
    const std::string_view name = headerName(text);
    const bool isFirst = m_index->addNew(name, static_cast<std::uint32_t>(m_stretches.size()), nameAt());
    if (!isFirst && !m_stretches.back().reachable && isFollowedBy(m_stretches.back().text, text)) {
        m_stretches.back().text = {m_stretches.back().text.data(),
                                   m_stretches.back().text.size() + text.size()};
        return;
    }
    m_stretches.push_back({text, nullptr, false, isFirst});
}

PlayText::Stretch* PlayText::findSection(std::string_view name) const {
    const std::uint32_t place = m_index->find(name, nameAt());
    return place == NameIndex::kNone ? nullptr : &m_stretches[place];
}

const SectionLines& PlayText::linesOf(Stretch& stretch) {
    if (!stretch.lines) {
        stretch.lines = std::make_shared<SectionLines>(stretch.text);
    }
    return *stretch.lines;
}

SectionLines& PlayText::linesToEdit(Stretch& stretch) {
    linesOf(stretch);
    if (stretch.lines.use_count() > 1) {
        stretch.lines = std::make_shared<SectionLines>(*stretch.lines);
    }
    return *stretch.lines;
}

std::optional<std::string_view> PlayText::value(std::string_view section, std::string_view key) const {
    Stretch* const stretch = findSection(trimSpaces(section));
    if (stretch == nullptr) {
        return std::nullopt;
    }
    if (!stretch->lines) {
        if (const auto first = glanceAtFirstKey(stretch->text, trimSpaces(key))) {
            return first;
        }
    }
    return linesOf(*stretch).value(trimSpaces(key));
}

bool PlayText::write(std::string_view section, std::string_view key, std::string_view value) {
    section = trimSpaces(section);
    key = trimSpaces(key);
    Stretch* const stretch = findSection(section);
    if (stretch == nullptr) {
        appendSection(section, key, value);
    } else {
        if (linesOf(*stretch).value(key) == value) {
            return false;
        }
        if (linesToEdit(*stretch).write(key, value, *m_store) == SectionLines::Edit::None) {
            return false;
        }
        stretch->edited = true;
    }
    if (!readsBackAsKey(key) || hasLineEnd(value) || !readsBackAsSection(section)) {
        readAnew();
    }
    return true;
}

void PlayText::appendSection(std::string_view section, std::string_view key, std::string_view value) {
    endLastLine();
    std::string text;
    text.append("[").append(section).append("]\r\n").append(key).append("=").append(value).append("\r\n");
    if (m_index.use_count() > 1) {
        m_index = std::make_shared<NameIndex>(*m_index);
    }
    addStretch(m_store->keep(std::move(text)));
}

void PlayText::endLastLine() {
    if (m_stretches.empty()) {
        return;
    }
    Stretch& last = m_stretches.back();
    std::string text = textOf(last);
    if (!text.empty() && !isLineEnd(text.back())) {
        replaceText(last, text.append("\r\n"));
    }
}

bool PlayText::deleteKey(std::string_view section, std::string_view key) {
    Stretch* const stretch = findSection(trimSpaces(section));
    if (stretch == nullptr) {
        return false;
    }
    std::optional<std::string> rest = linesOf(*stretch).textWithout(trimSpaces(key));
    if (rest) {
        replaceText(*stretch, std::move(*rest));
    }
    return rest.has_value();
}

bool PlayText::deleteSection(std::string_view section) {
    Stretch* const stretch = findSection(trimSpaces(section));
    if (stretch == nullptr) {
        return false;
    }
    replaceText(*stretch, commentsOf(textOf(*stretch)));
    readAnew();
    return true;
}

std::string PlayText::textOf(const Stretch& stretch) {
    if (!stretch.edited) {
        return std::string(stretch.text);
    }
    std::string text;
    stretch.lines->forEachPiece([&text](std::string_view piece) { text.append(piece); });
    return text;
}

void PlayText::replaceText(Stretch& stretch, std::string text) {
    stretch = {m_store->keep(std::move(text)), nullptr, false, stretch.reachable};
}

std::vector<std::string_view> PlayText::pieces() const {
    std::vector<std::string_view> all;
    const auto add = [&all](std::string_view piece) {
        if (piece.empty()) {
            return;
        }
        if (!all.empty() && isFollowedBy(all.back(), piece)) {
            all.back() = {all.back().data(), all.back().size() + piece.size()};
        } else {
            all.push_back(piece);
        }
    };
    for (const Stretch& stretch : m_stretches) {
        if (stretch.edited) {
            stretch.lines->forEachPiece(add);
        } else {
            add(stretch.text);
        }
    }
    return all;
}

std::string PlayText::bytes() const {
    const std::vector<std::string_view> all = pieces();
    std::size_t size = 0;
    for (const std::string_view piece : all) {
        size += piece.size();
    }
    std::string text;
    text.reserve(size);
    for (const std::string_view piece : all) {
        text.append(piece);
    }
    return text;
}

void PlayText::readAnew() {
    *this = PlayText(bytes());
}

void PlayText::tidy() {
    constexpr std::size_t kWorthKeeping = std::size_t{64} * 1024;
    if (m_store->size() > m_sizeRead * 2 + kWorthKeeping) {
        readAnew();
    }
}

} // namespace zeltrona::document
