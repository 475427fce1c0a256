#include "document/number_text.h"

#include "document/name_match.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace zeltrona::document {
namespace {

constexpr int kSingleDigits = 7;

// The decimal digits of a value and the place of its point: `digits` are d.ddd times ten to the power
// `exponent`.
struct Decimal {
    std::string digits;
    int exponent = 0;
};

Decimal significantDigits(float magnitude) {
    std::array<char, 32> buffer{};
    const auto made = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                    std::chars_format::scientific, kSingleDigits - 1);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(made.ptr - buffer.data()));
    const std::size_t mark = text.find('e');
    Decimal decimal;
    decimal.digits.push_back(text.front());
    decimal.digits.append(text.substr(2, mark - 2));
    const std::size_t behindSign = mark + 2;
    std::from_chars(text.data() + behindSign, text.data() + text.size(), decimal.exponent);
    if (text[mark + 1] == '-') {
        decimal.exponent = -decimal.exponent;
    }
    while (decimal.digits.size() > 1 && decimal.digits.back() == '0') {
        decimal.digits.pop_back();
    }
    return decimal;
}

double roundHalfEven(double value) {
    const double below = std::floor(value);
    const double fraction = value - below;
    if (fraction < 0.5 || (fraction == 0.5 && std::fmod(below, 2.0) == 0.0)) {
        return below;
    }
    return below + 1.0;
}

// Two's complement of the width that `modulus` tells.
std::int64_t wrapTo(double value, double modulus) {
    if (!std::isfinite(value)) {
        return 0;
    }
    double rest = std::fmod(roundHalfEven(value), modulus);
    if (rest >= modulus / 2) {
        rest -= modulus;
    } else if (rest < -modulus / 2) {
        rest += modulus;
    }
    return static_cast<std::int64_t>(rest);
}

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t skipDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && isDigit(text[at])) {
        ++at;
    }
    return at;
}

// The length of the exponent that starts at `at`, 0 when there is no whole one.
std::size_t exponentLength(std::string_view text, std::size_t at) {
    if (at >= text.size() || (text[at] != 'e' && text[at] != 'E')) {
        return 0;
    }
    std::size_t digits = at + 1;
    if (digits < text.size() && (text[digits] == '+' || text[digits] == '-')) {
        ++digits;
    }
    const std::size_t end = skipDigits(text, digits);
    return end == digits ? 0 : end - at;
}

// The length of the number that the text starts with, sign and exponent included; 0 when it starts with none.
std::size_t numberLength(std::string_view text) {
    const std::size_t first = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
    const std::size_t whole = skipDigits(text, first);
    std::size_t end = whole;
    std::size_t digits = whole - first;
    if (whole < text.size() && text[whole] == '.') {
        end = skipDigits(text, whole + 1);
        digits += end - whole - 1;
    }
    return digits == 0 ? 0 : end + exponentLength(text, end);
}

// The power of ten of the first digit that counts. It tells a number too small for a double from one too big,
// which from_chars reports alike.
long powerOfTen(std::string_view number) {
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, mark);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t first = std::min(mantissa.find_first_of("123456789"), mantissa.size());
    const long ofMantissa = static_cast<long>(point) - static_cast<long>(first);
    if (mark == number.size()) {
        return ofMantissa;
    }
    const bool negative = number[mark + 1] == '-';
    const std::size_t digits = mark + (negative || number[mark + 1] == '+' ? 2 : 1);
    int exponent = 0;
    const auto read = std::from_chars(number.data() + digits, number.data() + number.size(), exponent);
    if (read.ec != std::errc()) {
        exponent = std::numeric_limits<int>::max();
    }
    return ofMantissa + (negative ? -static_cast<long>(exponent) : static_cast<long>(exponent));
}

std::optional<double> valueOf(std::string_view number) {
    const bool negative = number.front() == '-';
    if (negative || number.front() == '+') {
        number.remove_prefix(1);
    }
    double value = 0.0;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
    if (read.ec == std::errc::result_out_of_range) {
        return powerOfTen(number) < 0 ? std::optional<double>(0.0) : std::nullopt;
    }
    return negative ? -value : value;
}

} // namespace

std::string singleText(float value) {
    if (!std::isfinite(value) || value == 0.0F) {
        return "0";
    }
    const Decimal decimal = significantDigits(std::fabs(value));
    const int count = static_cast<int>(decimal.digits.size());
    const int whole = decimal.exponent + 1;
    std::string text = value < 0.0F ? "-" : "";
    if (whole <= 0) {
        text.append("0.").append(static_cast<std::size_t>(-whole), '0').append(decimal.digits);
    } else if (count <= whole) {
        text.append(decimal.digits).append(static_cast<std::size_t>(whole - count), '0');
    } else {
        const auto point = static_cast<std::size_t>(whole);
        text.append(decimal.digits, 0, point).append(".").append(decimal.digits, point);
    }
    return text;
}

std::int16_t roundToInt16(double value) {
    return static_cast<std::int16_t>(wrapTo(value, 65536.0));
}

std::int32_t roundToInt32(double value) {
    return static_cast<std::int32_t>(wrapTo(value, 4294967296.0));
}

float toSingle(double value) {
    constexpr float kLargest = std::numeric_limits<float>::max();
    if (std::isnan(value)) {
        return 0.0F;
    }
    if (value > static_cast<double>(kLargest)) {
        return kLargest;
    }
    return value < -static_cast<double>(kLargest) ? -kLargest : static_cast<float>(value);
}

std::optional<double> numericField(std::string_view text) {
    const std::string_view number = trimBlanks(text);
    const std::size_t length = numberLength(number);
    if (length == 0 || length != number.size()) {
        return std::nullopt;
    }
    return valueOf(number);
}

double leadingNumber(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    const std::string_view number = text.substr(0, numberLength(text));
    return number.empty() ? 0.0 : valueOf(number).value_or(0.0);
}

} // namespace zeltrona::document
