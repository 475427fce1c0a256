#include "tools/zpf/json_text.h"

#include "tools/zpf/valid_utf8.h"

#include <array>
#include <cstdio>

namespace zeltrona::zpf {
namespace {

std::string escaped(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            result.append(1, '\\').append(1, c);
        } else if (static_cast<unsigned char>(c) < 0x20) {
            std::array<char, 8> code{};
            std::snprintf(code.data(), code.size(), "\\u%04x", static_cast<unsigned>(c));
            result.append(code.data());
        } else {
            result.push_back(c);
        }
    }
    return result;
}

} // namespace

void JsonText::separate() {
    if (!m_first) {
        m_text.append(", ");
    }
    m_first = false;
}

JsonText& JsonText::open(char bracket) {
    separate();
    m_text.push_back(bracket);
    m_first = true;
    return *this;
}

JsonText& JsonText::close(char bracket) {
    m_text.push_back(bracket);
    m_first = false;
    return *this;
}

JsonText& JsonText::key(std::string_view name) {
    separate();
    m_text.append("\"").append(escaped(name)).append("\": ");
    m_first = true;
    return *this;
}

JsonText& JsonText::text(std::string_view utf8) {
    separate();
    m_text.append("\"").append(escaped(validUtf8(utf8))).append("\"");
    return *this;
}

JsonText& JsonText::number(std::int64_t value) {
    separate();
    m_text.append(std::to_string(value));
    return *this;
}

JsonText& JsonText::flag(bool value) {
    separate();
    m_text.append(value ? "true" : "false");
    return *this;
}

} // namespace zeltrona::zpf
