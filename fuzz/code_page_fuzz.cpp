// Bytes of any character set become sound UTF-8, and UTF-8 becomes bytes that mean the same or is marked
// incomplete.

#include "document/code_page.h"
#include "fuzz/check.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

using namespace zeltrona::document;

namespace {

// Whether the text is UTF-8 as it should be: no stray, missing or overlong bytes, nothing past the last
// character.
bool isSound(std::string_view text) {
    while (!text.empty()) {
        const auto first = static_cast<unsigned char>(text[0]);
        const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
        if ((first >= 0x80 && first < 0xC2) || first > 0xF4 || length > text.size()) {
            return false;
        }
        for (const char c : text.substr(1, length - 1)) {
            if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U) {
                return false;
            }
        }
        text.remove_prefix(length);
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::array<std::int16_t, 14> kSets = {0,   128, 129, 134, 136, 161, 162,
                                                    163, 177, 178, 186, 204, 222, 238};
    if (size == 0) {
        return 0;
    }
    const std::int16_t charset = kSets[data[0] % kSets.size()];
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::string text = toUtf8(bytes, charset);
    FUZZ_CHECK(isSound(text));
    FUZZ_CHECK(bytes.empty() == text.empty());
    const Encoded back = fromUtf8(text, charset);
    if (text.find("\xEF\xBF\xBD") == std::string::npos) {
        FUZZ_CHECK(back.complete);
        FUZZ_CHECK(toUtf8(back.bytes, charset) == text);
    }
    const Encoded made = fromUtf8(bytes, charset);
    if (made.complete) {
        // The Vietnamese set writes some letters in two ways, so the meaning is compared and not the bytes.
        const std::string meaning = toUtf8(made.bytes, charset);
        FUZZ_CHECK(toUtf8(fromUtf8(meaning, charset).bytes, charset) == meaning);
    }
    return 0;
}
