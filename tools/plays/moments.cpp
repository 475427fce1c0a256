#include "tools/plays/moments.h"

#include <algorithm>
#include <cmath>

namespace zeltrona::plays {

using document::PointF;

namespace {

/// The middle whose left and top corner is whole.
PointF wholeMiddle(PointF middle, const Look& look) {
    const float half = halfPicture(look);
    return {std::nearbyint(middle.x - half) + half, std::nearbyint(middle.y - half) + half};
}

std::vector<PointF> placed(const std::vector<Place>& places, const Look& look, const CourtMap& map) {
    std::vector<PointF> middles;
    middles.reserve(places.size());
    for (const Place place : places) {
        middles.push_back(wholeMiddle(map.at(place), look));
    }
    return middles;
}

double gap(PointF a, PointF b) {
    return std::hypot(static_cast<double>(b.x) - a.x, static_cast<double>(b.y) - a.y);
}

PointF towards(PointF from, PointF to, double distance) {
    const double length = gap(from, to);
    const double part = length == 0 ? 0 : distance / length;
    return {static_cast<float>(from.x + (to.x - from.x) * part),
            static_cast<float>(from.y + (to.y - from.y) * part)};
}

PointF ballSpot(const Moment& moment) {
    const BallState& ball = moment.balls.front();
    return ball.holder ? standingOf(moment, *ball.holder) : ball.spot;
}

/// Between his man and the basket: an arm's length off the ball, further off and towards the ball away from
/// it.
PointF guarding(PointF man, PointF ball, const PlayScript& play, const CourtMap& map) {
    const PointF basket = map.at(kBasket);
    const double reach = map.length(play.look.bodies ? 1.9 : 1.3);
    const double sag = std::clamp(map.length(0.4) + 0.28 * gap(man, ball), reach, map.length(3.0));
    const double room = 0.62 * gap(man, basket);
    const PointF inside = towards(man, basket, std::max(std::min(sag, room), 0.8 * reach));
    const double help = man == ball ? 0 : std::clamp(0.16 * gap(man, ball), 0.0, map.length(1.2));
    return towards(inside, ball, help);
}

void guardAll(Moment& moment, const PlayScript& play, const CourtMap& map) {
    if (play.howDefended != Defence::ManToMan) {
        return;
    }
    moment.defence.resize(moment.offence.size());
    for (std::size_t i = 0; i < moment.offence.size(); ++i) {
        moment.defence[i] = wholeMiddle(guarding(moment.offence[i], ballSpot(moment), play, map), play.look);
    }
}

/// Two closer than this would hide each other.
double elbowRoom(const Look& look) {
    return look.bodies ? 36 : 22;
}

/// One step that takes defender i away from everybody who stands too close.
void makeRoom(Moment& moment, std::size_t i, double room) {
    PointF& me = moment.defence[i];
    const auto leave = [&me, room](PointF other) {
        const double distance = gap(me, other);
        if (distance < room) {
            const PointF from = distance == 0 ? PointF{other.x, other.y - 1} : me;
            me = towards(other, from, (distance + room + 1) / 2);
        }
    };
    for (const PointF other : moment.offence) {
        leave(other);
    }
    for (std::size_t k = 0; k < moment.defence.size(); ++k) {
        if (k != i) {
            leave(moment.defence[k]);
        }
    }
}

/// Moves the defenders who chose their place themselves until nobody hides anybody.
void spread(Moment& moment, const PlayScript& play, const std::vector<bool>& isFree) {
    constexpr int kRounds = 60;
    for (int round = 0; round < kRounds; ++round) {
        for (std::size_t i = 0; i < moment.defence.size(); ++i) {
            if (isFree[i]) {
                makeRoom(moment, i, elbowRoom(play.look));
            }
        }
    }
    for (PointF& middle : moment.defence) {
        middle = wholeMiddle(middle, play.look);
    }
}

PointF& standingIn(Moment& moment, Who who) {
    auto& team = who.team == Team::Offence ? moment.offence : moment.defence;
    return team.at(static_cast<std::size_t>(who.number - 1));
}

Moment firstMoment(const PlayScript& play, const CourtMap& map) {
    Moment moment{placed(play.offence, play.look, map), placed(play.defence, play.look, map), {}};
    for (const Who holder : play.balls) {
        moment.balls.push_back({holder, {}});
    }
    if (play.defence.empty()) {
        guardAll(moment, play, map);
        spread(moment, play, std::vector<bool>(moment.defence.size(), true));
    }
    return moment;
}

void moveBall(Moment& after, const Moment& before, const Move& move, const CourtMap& map) {
    const auto held = ballHeldBy(before, move.who);
    if (!held) {
        return;
    }
    if (move.verb == Verb::Pass) {
        after.balls[*held] = {move.mate, {}};
    } else if (move.verb == Verb::Shoot) {
        after.balls[*held] = {std::nullopt, map.at(kBasket)};
    }
}

Moment momentAfter(const Moment& before, const Frame& frame, const PlayScript& play, const CourtMap& map) {
    Moment after = before;
    for (const Move& move : frame.moves) {
        if (move.verb != Verb::Pass && move.verb != Verb::Shoot) {
            standingIn(after, move.who) = wholeMiddle(map.at(move.to), play.look);
        }
        moveBall(after, before, move, map);
    }
    const Moment told = after;
    guardAll(after, play, map);
    std::vector<bool> isFree(after.defence.size(), play.howDefended == Defence::ManToMan);
    for (const Move& move : frame.moves) {
        if (move.who.team == Team::Defence) {
            standingIn(after, move.who) = standingOf(told, move.who);
            isFree[static_cast<std::size_t>(move.who.number - 1)] = false;
        }
    }
    spread(after, play, isFree);
    return after;
}

} // namespace

float halfPicture(const Look& look) {
    return look.bodies ? 25.0F : 13.0F;
}

PointF standingOf(const Moment& moment, Who who) {
    const auto& team = who.team == Team::Offence ? moment.offence : moment.defence;
    return team.at(static_cast<std::size_t>(who.number - 1));
}

std::optional<std::size_t> ballHeldBy(const Moment& moment, Who who) {
    for (std::size_t i = 0; i < moment.balls.size(); ++i) {
        if (moment.balls[i].holder == who) {
            return i;
        }
    }
    return std::nullopt;
}

std::vector<Moment> momentsOf(const PlayScript& play) {
    const CourtMap map(play.look.court);
    std::vector<Moment> moments{firstMoment(play, map)};
    for (const Frame& frame : play.frames) {
        moments.push_back(momentAfter(moments.back(), frame, play, map));
    }
    return moments;
}

} // namespace zeltrona::plays
