#include "tools/plays/movement.h"

#include "tools/plays/curve.h"

#include <cmath>

namespace zeltrona::plays {

using document::LineRec;
using document::PointF;

namespace {

constexpr double kShortest = 6;

double gap(PointF a, PointF b) {
    return std::hypot(static_cast<double>(b.x) - a.x, static_cast<double>(b.y) - a.y);
}

/// `from`, moved `distance` towards `to`.
PointF trimmed(PointF from, PointF to, double distance) {
    const double part = distance / gap(from, to);
    return {static_cast<float>(from.x + (to.x - from.x) * part),
            static_cast<float>(from.y + (to.y - from.y) * part)};
}

int styleOf(Verb verb) {
    switch (verb) {
    case Verb::Pass:
        return 1;
    case Verb::Dribble:
        return 2;
    case Verb::Screen:
        return 3;
    case Verb::Shoot:
        return 4;
    case Verb::Cut:
    case Verb::Slide:
        break;
    }
    return 0;
}

struct Ends {
    PointF from;
    PointF to;
    double trimFrom = 0;
    double trimTo = 0;
};

Ends endsOf(const Move& move, const Look& look, const CourtMap& map, const Moment& now, const Moment& next) {
    const double edge = look.bodies ? 20 : 12;
    const PointF from = standingOf(now, move.who);
    if (move.verb == Verb::Pass) {
        return {from, standingOf(next, move.mate), edge, edge + 2};
    }
    if (move.verb == Verb::Shoot) {
        return {from, map.at(kBasket), edge, 12};
    }
    return {from, standingOf(next, move.who), edge, 0};
}

void append(std::vector<LineRec>& lines, LineRec line) {
    if (!document::hasLines(lines)) {
        lines.clear();
    }
    for (PointF& point : line.pts) {
        point = quartered(point);
    }
    lines.push_back(std::move(line));
}

void addLine(std::vector<LineRec>& lines, const Move& move, const Ends& ends, const CourtMap& map,
             Color color) {
    std::vector<PointF> via;
    for (const Place place : move.via) {
        via.push_back(map.at(place));
    }
    const PointF aim = via.empty() ? ends.to : via.front();
    const PointF lastAim = via.empty() ? ends.from : via.back();
    if (gap(ends.from, aim) < ends.trimFrom + ends.trimTo + kShortest) {
        return;
    }
    const PointF from = trimmed(ends.from, aim, ends.trimFrom);
    const PointF to = trimmed(ends.to, lastAim, ends.trimTo);
    LineRec line{static_cast<std::uint8_t>(styleOf(move.verb)), color, !via.empty(), {from, to}};
    if (line.curved) {
        line.pts = curvePoints(from, via, to);
    }
    append(lines, std::move(line));
}

} // namespace

void addMovementLines(document::FrameRecords& records, const PlayScript& play, const CourtMap& map,
                      const Frame& frame, const Moment& now, const Moment& next) {
    for (const Move& move : frame.moves) {
        if (move.verb != Verb::Slide) {
            addLine(records.lines, move, endsOf(move, play.look, map, now, next), map, play.look.line);
        }
    }
    for (const FreeLine& free : frame.lines) {
        LineRec line{static_cast<std::uint8_t>(free.style), play.look.line, free.curved, {}};
        for (const Place place : free.points) {
            line.pts.push_back(map.at(place));
        }
        append(records.lines, std::move(line));
    }
}

} // namespace zeltrona::plays
