#include "tools/zpf/number_ranges.h"

#include "tools/zpf/arguments.h"

#include <algorithm>

namespace zeltrona::zpf {
namespace {

/// No play has more frames than a frame's number can count.
constexpr int kMostNumber = 32767;

std::optional<NumberRange> parseRange(std::string_view text, int most) {
    const std::size_t dash = text.find('-');
    if (dash == text.npos) {
        const std::optional<int> number = parseNumber(text, 1, kMostNumber);
        return number ? std::optional<NumberRange>({*number, *number}) : std::nullopt;
    }
    const std::string_view from = text.substr(0, dash);
    const std::string_view to = text.substr(dash + 1);
    const std::optional<int> first = from.empty() ? 1 : parseNumber(from, 1, kMostNumber);
    const std::optional<int> last =
        to.empty() && first ? std::max(*first, most) : parseNumber(to, 1, kMostNumber);
    if (text.size() == 1 || !first || !last || *first > *last) {
        return std::nullopt;
    }
    return NumberRange{*first, *last};
}

} // namespace

std::optional<std::vector<NumberRange>> parseRanges(std::string_view text, int most) {
    std::vector<NumberRange> ranges;
    for (;;) {
        const std::size_t comma = std::min(text.find(','), text.size());
        const std::optional<NumberRange> range = parseRange(text.substr(0, comma), most);
        if (!range) {
            return std::nullopt;
        }
        ranges.push_back(*range);
        if (comma == text.size()) {
            return ranges;
        }
        text.remove_prefix(comma + 1);
    }
}

bool contains(const std::vector<NumberRange>& ranges, int number) {
    return std::any_of(ranges.begin(), ranges.end(), [number](const NumberRange& range) {
        return range.first <= number && number <= range.last;
    });
}

} // namespace zeltrona::zpf
