// Fields and numbers from outside bytes: what counts as a number agrees with a plain reading of the rule,
// every value that comes out is finite, and what is written reads back and is then written the same.

#include "document/number_text.h"
#include "document/profile_value.h"
#include "fuzz/check.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

using namespace zeltrona::document;

namespace {

// The rule, character by character: blanks, sign, digits with at most one point, exponent with sign, blanks.
bool isDecimal(std::string_view field) {
    std::size_t at = 0;
    const auto skip = [&field, &at](std::string_view allowed) {
        const std::size_t from = at;
        while (at < field.size() && allowed.find(field[at]) != std::string_view::npos) {
            ++at;
        }
        return at - from;
    };
    const auto skipOne = [&field, &at](std::string_view allowed) {
        const bool found = at < field.size() && allowed.find(field[at]) != std::string_view::npos;
        at += found ? 1 : 0;
        return found;
    };
    constexpr std::string_view kDigits = "0123456789";
    skip(" \t\v");
    skipOne("+-");
    std::size_t digits = skip(kDigits);
    if (skipOne(".")) {
        digits += skip(kDigits);
    }
    if (digits > 0 && skipOne("eE")) {
        skipOne("+-");
        digits = skip(kDigits);
    }
    skip(" \t\v");
    return digits > 0 && at == field.size();
}

void checkField(std::string_view field) {
    const auto value = numericField(field);
    if (value) {
        FUZZ_CHECK(std::isfinite(*value));
        FUZZ_CHECK(std::isfinite(toSingle(*value)));
        FUZZ_CHECK(leadingNumber(field) == *value);
    } else if (isDecimal(field)) {
        FUZZ_CHECK(std::isinf(std::strtod(std::string(field).c_str(), nullptr))); // too big, the one way out
    }
    FUZZ_CHECK(!value || isDecimal(field));
    FUZZ_CHECK(std::isfinite(leadingNumber(field)));
}

void checkSingle(float value) {
    const std::string text = singleText(value);
    const auto read = numericField(text);
    FUZZ_CHECK(text.find_first_not_of("-.0123456789") == std::string::npos);
    FUZZ_CHECK(read.has_value());
    if (std::isfinite(value)) {
        const double exact = static_cast<double>(value);
        FUZZ_CHECK(std::fabs(*read - exact) <= std::fabs(exact) * 5.1e-7);
    }
    FUZZ_CHECK(singleText(toSingle(*read)) == text || std::fabs(*read) > 1e7 || std::fabs(*read) < 1e-30);
}

void checkRounding(double value) {
    const std::int32_t wide = roundToInt32(value);
    const std::int16_t narrow = roundToInt16(value);
    FUZZ_CHECK(static_cast<std::int16_t>(wide) == narrow);
    if (std::fabs(value) <= 2147483647.0) {
        FUZZ_CHECK(std::fabs(static_cast<double>(wide) - value) <= 0.5);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    checkField(text);
    checkRounding(leadingNumber(text));
    FUZZ_CHECK(guardMarks(std::string(text)).size() >= text.size());
    FUZZ_CHECK(dropMarks(guardMarks(std::string(text))) == text);
    FUZZ_CHECK(wholeNumber(text) == wholeNumber(std::string(text) + "z"));
    if (size >= sizeof(double)) {
        float single = 0.0F;
        double wide = 0.0;
        std::memcpy(&single, data, sizeof(single));
        std::memcpy(&wide, data, sizeof(wide));
        checkSingle(single);
        checkRounding(wide);
    }
    return 0;
}
