#pragma once

#include <cstdint>
#include <string_view>

namespace zeltrona::document {

/// Space, tab and vertical tab, nothing else: what a line of the play may be indented and padded with.
constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\v';
}
constexpr bool isLineEnd(char c) {
    return c == '\r' || c == '\n';
}

/// Without blanks at both ends.
std::string_view trimBlanks(std::string_view text);
/// Without spaces at both ends; other white space stays, as the arguments of a call have it.
std::string_view trimSpaces(std::string_view text);

/// Equal without regard to the case of A to Z; bytes above 127 compare as they are.
bool sameName(std::string_view a, std::string_view b);

/// Hash to match `sameName`, keyed anew in each run so that no file can be made whose names all collide.
std::uint32_t nameHash(std::string_view name);

} // namespace zeltrona::document
