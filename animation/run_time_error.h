#pragma once

#include <string_view>

namespace zeltrona::animation {

/// A failure that ends a playback: the number and the words of its message box; number 0 is success.
struct RunTimeError {
    int number = 0;
    std::string_view description;
    bool failed() const { return number != 0; }
    friend bool operator==(const RunTimeError&, const RunTimeError&) = default;
};

inline constexpr RunTimeError kNoError{};
inline constexpr RunTimeError kOverflow{6, "Overflow"};
inline constexpr RunTimeError kSubscriptOutOfRange{9, "Subscript out of range"};

} // namespace zeltrona::animation
