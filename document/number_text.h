#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zeltrona::document {

/// The one place where numbers become text of the file and back; the user's locale has no say here.

/// Decimal form rounded to seven significant digits, a point, no trailing zeros: 92.5, 188.25, 10.
/// There is never an exponent: 1e12 is a one and twelve zeros, 1e-9 has eight zeros behind the point. Minus
/// zero, infinity and what is no number give "0".
std::string singleText(float value);

/// Nearest whole number, halves to the even neighbour; past the range it wraps to the width (modulo 2^16 or
/// 2^32); infinity and what is no number give 0.
std::int16_t roundToInt16(double value);
std::int32_t roundToInt32(double value);

/// The nearest single; past its range the largest one of the sign, 0 for what is no number, so that a
/// coordinate is always finite.
float toSingle(double value);

/// The value of a decimal number with optional blanks around, sign, one point and exponent; nothing else is
/// one (no hexadecimal, no grouping, no infinity). One too big for a double is none, one too small is 0.
std::optional<double> numericField(std::string_view text);

/// The number at the start of the text, blanks ahead of it skipped, up to the first character that does not
/// continue it; 0 when there is none or it is too big for a double.
double leadingNumber(std::string_view text);

} // namespace zeltrona::document
