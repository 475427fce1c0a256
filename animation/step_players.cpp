#include "animation/step_players.h"

#include <cmath>

namespace zeltrona::animation {

namespace {

/// The arrays of offence, defence or balls.
struct Group {
    const std::vector<PlayerRec>& start;
    const std::vector<PlayerRec>& end;
    std::vector<PlayerRec>& cur;
    const std::vector<PathRec>& paths;
    bool& done;
};

float roundedSum(double a, double b) {
    return static_cast<float>(a + b);
}

/// One coordinate alone: from `c` towards `n`, `d` units on. Equal coordinates pass through both halves.
float advance(float c, float n, double d) {
    float p = c;
    if (n >= c) {
        p = roundedSum(c, d);
        p = p >= n ? n : p;
    }
    if (c >= n) {
        p = roundedSum(c, -d);
        p = p <= n ? n : p;
    }
    return p;
}

void moveAslant(PlayerRec& p, const PlayerRec& c, const PlayerRec& n, double d) {
    const double slope = (double{n.y} - double{c.y}) / (double{n.x} - double{c.x});
    const double share = std::cos(std::atan(slope));
    if (n.x > c.x) {
        p.x = roundedSum(c.x, d * share);
        p.x = p.x >= n.x ? n.x : p.x;
    }
    if (n.x < c.x) {
        p.x = roundedSum(c.x, -(d * share));
        p.x = p.x <= n.x ? n.x : p.x;
    }
    p.y = roundedSum(slope * (double{p.x} - double{c.x}), c.y);
    if (n.y > c.y && p.y >= n.y) {
        p.y = n.y;
    }
    if (n.y < c.y && p.y <= n.y) {
        p.y = n.y;
    }
    // At an end on the board's upper edge no rounding swallows the last bit of the double: without this the
    // object would hang a hair below y = 0, and the step with it.
    if (p.x == n.x) {
        p.y = n.y;
    }
}

void moveStraight(PlayerRec& p, const PlayerRec& c, const PlayerRec& n, double d) {
    if (c.y == n.y) {
        p.y = c.y;
        p.x = advance(c.x, n.x, d);
    } else if (c.x == n.x) {
        p.x = c.x;
        p.y = advance(c.y, n.y, d);
    } else {
        moveAslant(p, c, n, d);
    }
}

bool moveAllStraight(const Group& group, double d) {
    for (std::size_t i = 0; i < group.start.size(); ++i) {
        if (i >= group.end.size()) {
            return false;
        }
        moveStraight(group.cur[i], group.start[i], group.end[i], d);
    }
    return true;
}

bool followPaths(const Group& group, std::int32_t tick) {
    for (const PathRec& path : group.paths) {
        if (!document::hasPaths(group.paths)) {
            break;
        }
        const std::size_t owner = path.owner;
        if (owner >= group.start.size()) {
            continue;
        }
        const auto point = static_cast<std::size_t>(tick);
        if (point < path.pts.size()) {
            group.cur[owner].x = path.pts[point].x;
            group.cur[owner].y = path.pts[point].y;
        } else if (owner < group.end.size()) {
            group.cur[owner].x = group.end[owner].x;
            group.cur[owner].y = group.end[owner].y;
        } else {
            return false;
        }
    }
    return true;
}

bool testArrival(const Group& group) {
    std::size_t arrived = 0;
    for (std::size_t i = 0; i < group.start.size(); ++i) {
        if (i >= group.end.size()) {
            return false;
        }
        arrived += group.cur[i].x == group.end[i].x && group.cur[i].y == group.end[i].y ? 1U : 0U;
    }
    if (arrived == group.start.size()) {
        group.done = true;
    }
    return true;
}

/// `d` is an integer product first: animStepSize x animTick.
double distanceGone(const PlaybackSet& set) {
    return static_cast<double>(set.animStepSize * set.animTick);
}

RunTimeError stepSide(const PlaybackSet& set, const Group& side) {
    const bool inRange =
        moveAllStraight(side, distanceGone(set)) && followPaths(side, set.animTick) && testArrival(side);
    return inRange ? kNoError : kSubscriptOutOfRange;
}

} // namespace

RunTimeError stepBalls(PlaybackSet& set) {
    if (!document::hasPlayers(set.ballAnimStart)) {
        set.animBallDone = true;
        return kNoError;
    }
    const Group balls{set.ballAnimStart, set.ballAnimEnd, set.ballAnimCur, set.ballAnimPaths,
                      set.animBallDone};
    // Balls alone are forgiven a shorter end array: those behind it stay where they are.
    moveAllStraight(balls, distanceGone(set));
    return followPaths(balls, set.animTick) && testArrival(balls) ? kNoError : kSubscriptOutOfRange;
}

RunTimeError stepPlayers(PlaybackSet& set) {
    if (const RunTimeError error = stepBalls(set); error.failed()) {
        return error;
    }
    const Group offence{set.offAnimStart, set.offAnimEnd, set.offAnimCur, set.offAnimPaths, set.animOffDone};
    if (const RunTimeError error = stepSide(set, offence); error.failed()) {
        return error;
    }
    const Group defence{set.defAnimStart, set.defAnimEnd, set.defAnimCur, set.defAnimPaths, set.animDefDone};
    return stepSide(set, defence);
}

} // namespace zeltrona::animation
