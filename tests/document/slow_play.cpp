#include "tests/document/slow_play.h"

#include <algorithm>

namespace zeltrona::tests {
namespace {

std::string trim(const std::string& text, const char* what) {
    const std::size_t first = text.find_first_not_of(what);
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(what) - first + 1);
}

std::string trimBlanks(const std::string& text) {
    return trim(text, " \t\v");
}

std::string trimSpaces(const std::string& text) {
    return trim(text, " ");
}

std::string lower(std::string text) {
    for (char& c : text) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return text;
}

bool same(const std::string& a, const std::string& b) {
    return lower(a) == lower(b);
}

std::optional<std::string> header(const std::string& line) {
    const std::string text = trimBlanks(line);
    if (text.empty() || text[0] != '[') {
        return std::nullopt;
    }
    return trimBlanks(text.substr(1, text.find(']') == std::string::npos ? text.size() : text.find(']') - 1));
}

bool isComment(const std::string& line) {
    return trimBlanks(line).rfind(';', 0) == 0;
}

bool isKeyLine(const std::string& line) {
    return !header(line) && !isComment(line) && line.find('=') != std::string::npos;
}

std::string nameOf(const std::string& line) {
    return trimBlanks(line.substr(0, line.find('=')));
}

std::string valueOf(const std::string& line) {
    return trimBlanks(line.substr(line.find('=') + 1));
}

} // namespace

std::vector<SlowPlay::Line> SlowPlay::cut() const {
    std::vector<Line> lines;
    for (std::size_t at = 0; at < m_bytes.size();) {
        Line line;
        while (at < m_bytes.size() && m_bytes[at] != '\r' && m_bytes[at] != '\n') {
            line.text += m_bytes[at++];
        }
        if (at < m_bytes.size()) {
            line.end += m_bytes[at++];
            if (line.end == "\r" && at < m_bytes.size() && m_bytes[at] == '\n') {
                line.end += m_bytes[at++];
            }
        }
        lines.push_back(line);
    }
    return lines;
}

void SlowPlay::join(const std::vector<Line>& lines) {
    m_bytes.clear();
    for (const Line& line : lines) {
        m_bytes += line.text + line.end;
    }
}

std::optional<SlowPlay::Range> SlowPlay::find(const std::vector<Line>& lines, const std::string& section) {
    for (std::size_t at = 0; at < lines.size(); ++at) {
        const auto name = header(lines[at].text);
        if (name && same(*name, section)) {
            std::size_t end = at + 1;
            while (end < lines.size() && !header(lines[end].text)) {
                ++end;
            }
            return Range{at, end};
        }
    }
    return std::nullopt;
}

std::optional<std::size_t> SlowPlay::find(const std::vector<Line>& lines, Range range,
                                          const std::string& key) {
    for (std::size_t at = range.header + 1; at < range.end; ++at) {
        if (isKeyLine(lines[at].text) && same(nameOf(lines[at].text), key)) {
            return at;
        }
    }
    return std::nullopt;
}

std::optional<std::string> SlowPlay::value(std::string section, std::string key) const {
    const std::vector<Line> lines = cut();
    const auto range = find(lines, trimSpaces(section));
    const auto at = range ? find(lines, *range, trimSpaces(key)) : std::nullopt;
    return at ? std::optional<std::string>(valueOf(lines[*at].text)) : std::nullopt;
}

void SlowPlay::write(std::string section, std::string key, const std::string& value) {
    section = trimSpaces(section);
    key = trimSpaces(key);
    std::vector<Line> lines = cut();
    const auto range = find(lines, section);
    if (!range) {
        if (!lines.empty() && lines.back().end.empty()) {
            lines.back().end = "\r\n";
        }
        lines.push_back({"[" + section + "]", "\r\n"});
        lines.push_back({key + "=" + value, "\r\n"});
        return join(lines);
    }
    if (const auto at = find(lines, *range, key)) {
        Line& line = lines[*at];
        const std::string text =
            line.text.substr(0, line.text.find_first_not_of(" \t\v")) + nameOf(line.text) + "=" + value;
        if (valueOf(line.text) != value && line.text != text) {
            line.text = text;
            line.end = line.end.empty() ? "\r\n" : line.end;
        }
        return join(lines);
    }
    std::size_t last = range->header;
    for (std::size_t at = range->header + 1; at < range->end; ++at) {
        last = isKeyLine(lines[at].text) ? at : last;
    }
    lines[last].end = lines[last].end.empty() ? "\r\n" : lines[last].end;
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(last) + 1, Line{key + "=" + value, "\r\n"});
    join(lines);
}

void SlowPlay::deleteKey(std::string section, std::string key) {
    std::vector<Line> lines = cut();
    const auto range = find(lines, trimSpaces(section));
    const auto at = range ? find(lines, *range, trimSpaces(key)) : std::nullopt;
    if (at) {
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(*at));
        join(lines);
    }
}

void SlowPlay::deleteSection(std::string section) {
    std::vector<Line> lines = cut();
    const auto range = find(lines, trimSpaces(section));
    if (!range) {
        return;
    }
    std::vector<Line> rest;
    for (std::size_t at = 0; at < lines.size(); ++at) {
        if (at < range->header || at >= range->end || isComment(lines[at].text)) {
            rest.push_back(lines[at]);
        }
    }
    join(rest);
}

std::vector<std::pair<std::string, std::string>> SlowPlay::names() const {
    std::vector<std::pair<std::string, std::string>> all;
    std::string section;
    bool inside = false;
    for (const Line& line : cut()) {
        if (const auto name = header(line.text)) {
            section = *name;
            inside = true;
        } else if (inside && isKeyLine(line.text)) {
            all.emplace_back(section, nameOf(line.text));
        }
    }
    return all;
}

} // namespace zeltrona::tests
