#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zeltrona::document {

/// The one place where numbers become text of the file and back; the user's locale has no say here.

/// Shortest decimal form with up to seven significant digits, a point, no trailing zeros: 92.5, 188.25, 10.
std::string singleText(float value);

/// Nearest whole number, halves to the even neighbour; past the range it wraps to the width (modulo 2^16 or 2^32);
/// what is no number gives 0.
std::int16_t roundToInt16(double value);
std::int32_t roundToInt32(double value);

/// The value of a decimal number with optional blanks around, sign, one point and exponent; nothing else is one.
std::optional<double> numericField(std::string_view text);

/// The number at the start of the text, blanks skipped; 0 when there is none.
double leadingNumber(std::string_view text);

} // namespace zeltrona::document
