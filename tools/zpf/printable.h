#pragma once

#include <string>
#include <string_view>

namespace zeltrona::zpf {

/// The text as it may go to a terminal: a control character other than the line feed stands as "\\x1B", so
/// that a play from elsewhere cannot move the cursor, ring, or write over what is there. All other bytes
/// stay.
std::string printable(std::string_view text);

} // namespace zeltrona::zpf
