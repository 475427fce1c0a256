#include "tools/zpf/check/check_desk.h"

#include "document/code_page.h"
#include "tools/zpf/arguments.h"

#include <charconv>

namespace zeltrona::zpf {
namespace {

constexpr std::string_view kNoCharacter = "\xEF\xBF\xBD"; // U+FFFD, what a byte without meaning becomes
constexpr std::size_t kLongestQuote = 40;

bool isWhole(std::string_view text) {
    std::int32_t number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return read.ec == std::errc() && read.ptr == text.data() + text.size();
}

} // namespace

std::string CheckDesk::read(std::string_view key, document::TextBuffer buffer) const {
    return document::readText(m_play, m_section.name, key, buffer);
}

std::string CheckDesk::whole(std::string_view key) const {
    return m_play.readWhole(m_section.name, key);
}

void CheckDesk::add(FindingKind kind, std::string_view key, std::string text) const {
    const ListedKey* listed = m_section.find(key);
    m_findings.push_back({kind, listed != nullptr ? listed->line : m_section.line,
                          std::string(m_section.name), std::string(key), std::move(text)});
}

void CheckDesk::checkLength(std::string_view key, document::TextBuffer buffer) const {
    const std::size_t length = whole(key).size();
    if (length > document::usableLength(buffer)) {
        add(FindingKind::Cut, key,
            "only " + std::to_string(document::usableLength(buffer)) + " of its " + std::to_string(length)
                + " characters are read");
    }
}

void CheckDesk::checkCharacters(std::string_view key) const {
    const std::string value = whole(key);
    if (document::toUtf8(value, m_charset).find(kNoCharacter) != std::string::npos) {
        add(FindingKind::LostCharacter, key,
            quoted(value) + " has bytes that are no character of set " + std::to_string(m_charset));
    }
}

void CheckDesk::checkWhole(std::string_view key, std::int32_t least, std::int32_t most) const {
    const std::string value = whole(key);
    const std::int32_t number = m_play.readInt(m_section.name, key, 0);
    if (!isWhole(value)) {
        add(FindingKind::BadValue, key,
            quoted(value) + " is no whole number: it reads as " + std::to_string(number));
    } else if (number < least || number > most) {
        add(FindingKind::BadValue, key,
            std::to_string(number) + " is not from " + std::to_string(least) + " to " + std::to_string(most));
    }
}

std::string CheckDesk::quoted(std::string_view bytes) const {
    const bool fits = bytes.size() <= kLongestQuote;
    std::string text = "\"" + document::toUtf8(bytes.substr(0, kLongestQuote), m_charset);
    return text.append(fits ? "\"" : "...\"");
}

} // namespace zeltrona::zpf
