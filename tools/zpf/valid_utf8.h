#pragma once

#include <string>
#include <string_view>

namespace zeltrona::zpf {

/// The text with U+FFFD in the place of each byte that is not part of a well-formed character.
std::string validUtf8(std::string_view text);

} // namespace zeltrona::zpf
