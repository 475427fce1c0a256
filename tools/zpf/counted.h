#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zeltrona::zpf {

/// "1 frame", "2 frames": for words that take an s.
inline std::string counted(std::size_t count, std::string_view what) {
    return std::to_string(count).append(" ").append(what).append(count == 1 ? "" : "s");
}

} // namespace zeltrona::zpf
