#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace zeltrona::zpf {

/// Numbers from `first` to `last`, both included.
struct NumberRange {
    int first = 1;
    int last = 1;
    friend bool operator==(const NumberRange&, const NumberRange&) = default;
};

/// "2", "2-5", "2-" (to the end), "-3" (from 1), and several of them with commas between.
/// Shape:  in the order given; an open end is `most`.
/// Errors: nothing for any other text, for 0 and for a range the wrong way round.
std::optional<std::vector<NumberRange>> parseRanges(std::string_view text, int most);

/// Whether one of the ranges holds the number.
bool contains(const std::vector<NumberRange>& ranges, int number);

} // namespace zeltrona::zpf
