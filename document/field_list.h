#pragma once

#include <string_view>
#include <vector>

namespace zeltrona::document {

/// One field of a list value that counted.
struct ListField {
    std::string_view text; ///< part of the value that was split
    double number = 0.0;   ///< what it reads as
};

/// Which fields of a key count.
enum class FieldTest {
    Numeric, ///< a field that is no number is skipped, and the one behind it takes its place
    Any      ///< every field counts; its number is the one at its start, else 0
};

/// Splits a list value at its commas.
/// Shape:  a field counts only if a comma ends it: what stands behind the last comma is dropped.
/// Reason: a value that the read cut short thus loses its last, partial field instead of giving a
///         wrong number.
std::vector<ListField> splitFields(std::string_view value, FieldTest test);

} // namespace zeltrona::document
