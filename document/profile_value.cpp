#include "document/profile_value.h"

namespace zeltrona::document {
namespace {

bool hasOuterMarks(std::string_view value) {
    return value.size() >= 2 && (value.front() == '"' || value.front() == '\'')
           && value.back() == value.front();
}

// The digit's worth, or the base when it is none of this base.
std::uint32_t digitOf(char c, std::uint32_t base) {
    std::uint32_t digit = base;
    if (c >= '0' && c <= '9') {
        digit = static_cast<std::uint32_t>(c - '0');
    } else if (c >= 'a' && c <= 'f') {
        digit = static_cast<std::uint32_t>(c - 'a') + 10;
    } else if (c >= 'A' && c <= 'F') {
        digit = static_cast<std::uint32_t>(c - 'A') + 10;
    }
    return digit < base ? digit : base;
}

std::uint32_t takeBase(std::string_view& digits) {
    std::uint32_t base = 10;
    if (digits.starts_with("0x")) {
        base = 16;
    } else if (digits.starts_with("0o")) {
        base = 8;
    } else if (digits.starts_with("0b")) {
        base = 2;
    }
    if (base != 10) {
        digits.remove_prefix(2);
    }
    return base;
}

} // namespace

std::string_view dropMarks(std::string_view value) {
    return hasOuterMarks(value) ? value.substr(1, value.size() - 2) : value;
}

std::string_view trimDefault(std::string_view fallback) {
    return fallback.substr(0, fallback.find_last_not_of(' ') + 1);
}

std::int32_t wholeNumber(std::string_view value) {
    const bool negative = value.starts_with('-');
    if (negative || value.starts_with('+')) {
        value.remove_prefix(1);
    }
    const std::uint32_t base = takeBase(value);
    std::uint32_t number = 0;
    for (const char c : value) {
        const std::uint32_t digit = digitOf(c, base);
        if (digit == base) {
            break;
        }
        number = number * base + digit;
    }
    return static_cast<std::int32_t>(negative ? 0U - number : number);
}

std::string guardMarks(std::string text) {
    return hasOuterMarks(text) ? text.front() + text + text.front() : text;
}

} // namespace zeltrona::document
