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

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::array<std::int16_t, 14> kSets = {0,   128, 129, 134, 136, 161, 162,
                                                    163, 177, 178, 186, 204, 222, 238};
    if (size == 0) {
        return 0;
    }
    const std::int16_t charset = kSets[data[0] % kSets.size()];
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::string text = toUtf8(bytes, charset);
    FUZZ_CHECK(toUtf8(text, charset).size() >= text.size() || !text.empty());
    const Encoded back = fromUtf8(text, charset);
    if (text.find("\xEF\xBF\xBD") == std::string::npos) {
        FUZZ_CHECK(back.complete);
        FUZZ_CHECK(toUtf8(back.bytes, charset) == text);
    }
    const Encoded made = fromUtf8(bytes, charset);
    if (made.complete) {
        FUZZ_CHECK(fromUtf8(toUtf8(made.bytes, charset), charset).bytes == made.bytes);
    }
    return 0;
}
