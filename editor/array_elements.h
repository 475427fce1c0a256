#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace zeltrona::editor {

/// The element at the index, or null when a change of the frame has left the index without one.
template<typename Array> auto* elementAt(Array& array, std::int16_t index) {
    const bool exists = index >= 0 && static_cast<std::size_t>(index) < array.size();
    return exists ? &array[static_cast<std::size_t>(index)] : nullptr;
}

template<typename Record> std::int16_t upperBound(const std::vector<Record>& array) {
    constexpr std::size_t kLargest = std::numeric_limits<std::int16_t>::max();
    return static_cast<std::int16_t>(array.size() > kLargest ? kLargest : array.size() - 1);
}

/// Index of the element that a new object fills: 0 in an array without data, else that of a new last element,
/// all zero; -1, with nothing added, when the index would leave 16 bits.
template<typename Record> std::int16_t addElement(std::vector<Record>& array, bool hasData) {
    constexpr std::size_t kLargest = std::numeric_limits<std::int16_t>::max();
    if (!hasData) {
        return 0;
    }
    if (array.size() > kLargest) {
        return -1;
    }
    array.emplace_back();
    return upperBound(array);
}

} // namespace zeltrona::editor
