#pragma once

namespace zeltrona::plays {

/// A place on the court as a coach says it, seen by the offence that faces its basket.
/// Units: metres; `across` from the middle, to the right positive; `along` from the end line behind the
/// basket.
struct Place {
    double across = 0;
    double along = 0;
    friend bool operator==(const Place&, const Place&) = default;
};

inline Place operator+(Place a, Place b) {
    return {a.across + b.across, a.along + b.along};
}

enum class Side { Left, Right };

/// The same place on the other side of the court.
inline Place mirrored(Place p) {
    return {-p.across, p.along};
}

namespace detail {
inline Place on(Side side, double across, double along) {
    return {side == Side::Right ? across : -across, along};
}
} // namespace detail

// The names that coaches use. A spot outside the three-point line is so on every set of markings.

inline constexpr Place kBasket{0, 1.6};
inline constexpr Place kTop{0, 9.0};
inline constexpr Place kHighPost{0, 5.9};
inline Place slot(Side side) {
    return detail::on(side, 2.5, 8.7);
}
inline Place wing(Side side) {
    return detail::on(side, 5.6, 6.6);
}
inline Place corner(Side side) {
    return detail::on(side, 6.75, 1.3);
}
inline Place elbow(Side side) {
    return detail::on(side, 2.4, 5.9);
}
inline Place block(Side side) {
    return detail::on(side, 2.7, 2.4);
}
inline Place midPost(Side side) {
    return detail::on(side, 2.8, 3.7);
}
inline Place shortCorner(Side side) {
    return detail::on(side, 4.5, 1.0);
}

} // namespace zeltrona::plays
