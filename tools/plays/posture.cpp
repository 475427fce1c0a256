#include "tools/plays/posture.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zeltrona::plays {

using document::PointF;

namespace {

const Move* moveOf(const Frame& frame, Who who) {
    for (const Move& move : frame.moves) {
        if (move.who == who) {
            return &move;
        }
    }
    return nullptr;
}

bool receivesPass(const Frame& frame, Who who) {
    for (const Move& move : frame.moves) {
        if (move.verb == Verb::Pass && move.mate == who) {
            return true;
        }
    }
    return false;
}

/// What he looks at.
PointF aimOf(const CourtMap& map, const Moment& moment, const Frame& frame, Who who) {
    const Move* move = moveOf(frame, who);
    const bool holds = ballHeldBy(moment, who).has_value();
    if (move != nullptr && move->verb == Verb::Pass) {
        return move->via.empty() ? standingOf(moment, move->mate) : map.at(move->via.front());
    }
    if (move != nullptr && who.team == Team::Offence && move->verb != Verb::Slide) {
        return map.at(move->via.empty() ? move->to : move->via.front());
    }
    if (holds || moment.balls.empty()) {
        return map.at(kBasket);
    }
    const BallState& ball = moment.balls.front();
    return ball.holder ? standingOf(moment, *ball.holder) : ball.spot;
}

/// Degrees counter-clockwise from the right.
double directionOf(PointF from, PointF to) {
    const double degrees = std::atan2(static_cast<double>(from.y) - to.y, static_cast<double>(to.x) - from.x)
                           * 180 / std::numbers::pi;
    return degrees <= 0 ? degrees + 360 : degrees;
}

/// `ahead` and `aside` to the right of somebody who faces `degrees`.
PointF beside(PointF from, double degrees, double ahead, double aside) {
    const double radians = degrees * std::numbers::pi / 180;
    const double c = std::cos(radians);
    const double s = std::sin(radians);
    return {static_cast<float>(from.x + ahead * c + aside * s),
            static_cast<float>(from.y - ahead * s + aside * c)};
}

/// How far the nearest other player is.
double roomAt(const Moment& moment, Who holder, PointF spot) {
    double room = 1e9;
    for (const Team team : {Team::Offence, Team::Defence}) {
        const auto& middles = team == Team::Offence ? moment.offence : moment.defence;
        for (std::size_t i = 0; i < middles.size(); ++i) {
            if (holder != Who{team, static_cast<int>(i + 1)}) {
                room = std::min(room, std::hypot(static_cast<double>(middles[i].x) - spot.x,
                                                 static_cast<double>(middles[i].y) - spot.y));
            }
        }
    }
    return room;
}

/// Beside a disc, ahead to the right where nobody covers the ball; else on the side with the most room.
PointF freeSide(const Moment& moment, Who holder, double degrees) {
    constexpr double kDistance = 17;
    constexpr double kEnough = 18;
    PointF best = beside(standingOf(moment, holder), degrees - 36, kDistance, 0);
    for (const double turn : {-36.0, 36.0, -90.0, 90.0, -140.0, 140.0}) {
        const PointF spot = beside(standingOf(moment, holder), degrees + turn, kDistance, 0);
        if (roomAt(moment, holder, spot) >= kEnough) {
            return spot;
        }
        if (roomAt(moment, holder, spot) > roomAt(moment, holder, best)) {
            best = spot;
        }
    }
    return best;
}

} // namespace

Posture postureOf(const PlayScript& play, const CourtMap& map, const Moment& moment, const Frame& frame,
                  Who who) {
    if (!play.look.bodies) {
        return {};
    }
    const double degrees = directionOf(standingOf(moment, who), aimOf(map, moment, frame, who));
    const int step = static_cast<int>(std::nearbyint(degrees / 15));
    Posture posture;
    posture.angle = static_cast<std::int16_t>((step == 0 ? 24 : step) * 15);
    const Move* move = moveOf(frame, who);
    if (who.team == Team::Defence) {
        posture.pose = 2;
    } else if (ballHeldBy(moment, who)) {
        posture.pose = move != nullptr && move->verb == Verb::Dribble ? 3 : 1;
    } else if (receivesPass(frame, who) && move == nullptr) {
        posture.pose = 1;
    }
    return posture;
}

PointF ballMiddle(const PlayScript& play, const CourtMap& map, const Moment& moment, const Frame& frame,
                  std::size_t ball) {
    const BallState& state = moment.balls[ball];
    if (!state.holder) {
        return state.spot;
    }
    const PointF holder = standingOf(moment, *state.holder);
    if (!play.look.bodies) {
        return freeSide(moment, *state.holder, directionOf(holder, aimOf(map, moment, frame, *state.holder)));
    }
    const Posture posture = postureOf(play, map, moment, frame, *state.holder);
    return beside(holder, posture.angle, 25, posture.pose == 3 ? 8 : 0);
}

} // namespace zeltrona::plays
