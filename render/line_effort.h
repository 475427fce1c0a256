#pragma once

#include <cstdint>
#include <limits>

namespace zeltrona::render {

/// What the movement lines of one frame may still cost, in about nanoseconds. Without end when made plainly.
/// Reason: a play from anywhere can name lines by the thousand, each a maze of half waves under a pen as wide
///         as the board. What such a play asks for beyond its share is painted in a rougher way, so that a
///         redraw costs no more than its file is long. The share for all is what forty lines take that cross
///         the board ten times each under a pen of 20: no play that a hand draws comes near it.
class LineEffort {
public:
    LineEffort() = default;
    /// The share of a frame whose lines have so many points.
    static LineEffort forPoints(std::size_t points) {
        LineEffort effort;
        effort.m_left = kForAll + kForPoint * static_cast<std::int64_t>(points);
        return effort;
    }

    /// Takes so much of what is left; false, and nothing is taken, when it is less.
    bool take(std::int64_t cost) {
        if (cost > m_left) {
            return false;
        }
        m_left -= cost;
        return true;
    }

private:
    static constexpr std::int64_t kForAll = 40'000'000; ///< a heavy board takes a hundredth of it
    static constexpr std::int64_t kForPoint = 2'000;
    std::int64_t m_left = std::numeric_limits<std::int64_t>::max();
};

// What things cost, rounded up; `width` of the pen.

/// A half wave: every pixel of the square around it is looked at.
inline std::int64_t costOfHalfWave(int width) {
    const std::int64_t side = width < 400 ? width + 5 : 405;
    return 200 + side * side;
}
/// A dash and its gap, each half of it: a few rows of pixels.
inline std::int64_t costOfDash(int width) {
    const std::int64_t side = width < 400 ? width + 5 : 405;
    return 25 + side * 20;
}
/// A cubic that can be seen.
inline std::int64_t costOfCubic(int width) {
    return 10'000 + 1'000 * static_cast<std::int64_t>(width < 400 ? width : 400);
}
/// A sample of a curve that lies outside the board.
inline constexpr std::int64_t kCostOfUnseenSample = 150;

} // namespace zeltrona::render
