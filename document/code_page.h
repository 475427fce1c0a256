#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zeltrona::document {

/// The code page of a character set number: 238 gives 1250, 128 gives 932 and so on; one outside the table
/// 1252.
int codePageOf(std::int16_t charset);

/// Bytes of the character set as UTF-8; a byte without meaning becomes U+FFFD.
std::string toUtf8(std::string_view bytes, std::int16_t charset);

struct Encoded {
    std::string bytes;    ///< characters that the set lacks stand as '?'
    bool complete = true; ///< false when one was lacking
};
/// UTF-8 as bytes of the character set.
Encoded fromUtf8(std::string_view utf8, std::int16_t charset);

} // namespace zeltrona::document
