#include "tools/zpf/valid_utf8.h"

#include <algorithm>
#include <cstddef>

namespace zeltrona::zpf {
namespace {

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// Length that the first byte announces; 0 when no character starts with it.
std::size_t announcedLength(unsigned char first) {
    if (first < 0x80) {
        return 1;
    }
    if (first < 0xC2 || first > 0xF4) {
        return 0;
    }
    return first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

/// Length of the well-formed character at the text's start, 0 when there is none.
std::size_t characterLength(std::string_view text) {
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t length = announcedLength(first);
    if (length == 0 || length > text.size()
        || !std::all_of(text.begin() + 1, text.begin() + static_cast<std::ptrdiff_t>(length),
                        isContinuation)) {
        return 0;
    }
    const unsigned second = length > 1 ? static_cast<unsigned char>(text[1]) : 0x80U;
    const bool overlong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
    const bool beyond = (first == 0xED && second > 0x9F) || (first == 0xF4 && second > 0x8F);
    return overlong || beyond ? 0 : length;
}

} // namespace

std::string validUtf8(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        result.append(length > 0 ? text.substr(0, length) : std::string_view("\xEF\xBF\xBD"));
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return result;
}

} // namespace zeltrona::zpf
