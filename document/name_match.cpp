#include "document/name_match.h"

#include <cstring>
#include <random>

namespace zeltrona::document {
namespace {

constexpr std::uint64_t everyByte(std::uint64_t byte) {
    return byte * 0x0101010101010101U;
}

// Turns A to Z among eight bytes to lower case at once: the sums carry into the top bit of a byte that lies
// in the range, and that bit, moved to the place of 0x20, is the difference of the cases.
std::uint64_t foldEight(std::uint64_t bytes) {
    const std::uint64_t low = bytes & everyByte(0x7F);
    const std::uint64_t fromA = low + everyByte(0x80 - 'A');
    const std::uint64_t pastZ = low + everyByte(0x7F - 'Z');
    const std::uint64_t upper = (fromA ^ pastZ) & ~bytes & everyByte(0x80);
    return bytes | (upper >> 2U);
}

std::uint64_t loadFolded(const char* from, std::size_t count) {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, from, count);
    return foldEight(bytes);
}

std::uint64_t mix(std::uint64_t a, std::uint64_t b) {
    __extension__ using Wide = unsigned __int128;
    const Wide product = static_cast<Wide>(a) * b;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64U);
}

std::uint64_t seedOfThisRun() {
    std::random_device source;
    return (static_cast<std::uint64_t>(source()) << 32U) | source();
}

} // namespace

std::string_view trimBlanks(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

std::string_view trimSpaces(std::string_view text) {
    while (!text.empty() && text.front() == ' ') {
        text.remove_prefix(1);
    }
    while (!text.empty() && text.back() == ' ') {
        text.remove_suffix(1);
    }
    return text;
}

bool sameName(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) {
        return false;
    }
    std::size_t at = 0;
    for (; at + 8 <= a.size(); at += 8) {
        if (loadFolded(a.data() + at, 8) != loadFolded(b.data() + at, 8)) {
            return false;
        }
    }
    const std::size_t rest = a.size() - at;
    return rest == 0 || loadFolded(a.data() + at, rest) == loadFolded(b.data() + at, rest);
}

std::uint32_t nameHash(std::string_view name) {
    static const std::uint64_t seed = seedOfThisRun();
    std::uint64_t hash = seed ^ name.size();
    std::size_t at = 0;
    for (; at + 8 <= name.size(); at += 8) {
        hash = mix(hash ^ loadFolded(name.data() + at, 8), 0x9E3779B97F4A7C15U);
    }
    if (at < name.size()) {
        hash = mix(hash ^ loadFolded(name.data() + at, name.size() - at), 0xC2B2AE3D27D4EB4FU);
    }
    hash = mix(hash, seed | 1U);
    return static_cast<std::uint32_t>(hash ^ (hash >> 32U));
}

} // namespace zeltrona::document
