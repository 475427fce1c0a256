#include "tools/zpf/printable.h"

#include <array>
#include <cstdio>

namespace zeltrona::zpf {
namespace {

bool isControl(unsigned char c) {
    return (c < 0x20 && c != '\n') || c == 0x7F;
}

/// The second byte of U+0080 to U+009F, which terminals obey too.
bool isUpperControl(unsigned char first, unsigned char second) {
    return first == 0xC2 && second >= 0x80 && second < 0xA0;
}

void appendCode(std::string& result, unsigned char c) {
    std::array<char, 8> code{};
    std::snprintf(code.data(), code.size(), "\\x%02X", static_cast<unsigned>(c));
    result.append(code.data());
}

} // namespace

std::string printable(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        const auto next = static_cast<unsigned char>(i + 1 < text.size() ? text[i + 1] : '\0');
        if (isControl(c)) {
            appendCode(result, c);
        } else if (isUpperControl(c, next)) {
            appendCode(result, next);
            ++i;
        } else {
            result.push_back(text[i]);
        }
    }
    return result;
}

} // namespace zeltrona::zpf
