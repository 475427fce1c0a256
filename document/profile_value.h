#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zeltrona::document {

/// The value without its outer pair of equal quotation marks (' or "), if it has one. Blanks inside the pair
/// stay.
std::string_view dropMarks(std::string_view value);

/// A default as a string read gives it: without its trailing spaces.
std::string_view trimDefault(std::string_view fallback);

/// The whole number at the start of a value: optional sign, then digits up to the first other character,
/// decimal or behind 0x, 0o or 0b to the base 16, 8 or 2. 32 bits, modulo 2^32; no digits give 0.
std::int32_t wholeNumber(std::string_view value);

/// A text from the user as it goes into the file: one that begins and ends with the same mark is put inside
/// one more pair, so that it reads back as it was typed.
std::string guardMarks(std::string text);

} // namespace zeltrona::document
