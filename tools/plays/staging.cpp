#include "tools/plays/staging.h"

#include "document/code_page.h"
#include "tools/plays/curve.h"
#include "tools/plays/floor_objects.h"
#include "tools/plays/movement.h"
#include "tools/plays/posture.h"

namespace zeltrona::plays {

using document::FrameRecords;
using document::PlayerRec;
using document::PointF;

namespace {

/// Everything that one frame is made of.
struct Stage {
    const PlayScript& play;
    const CourtMap& map;
    const Frame& frame;
    const Frame& nextFrame;
    const Moment& now;
    const Moment& next;
    bool isLast = false;
};

std::vector<PlayerRec> playersOf(const Stage& stage, Team team, std::size_t count) {
    std::vector<PlayerRec> players;
    for (std::size_t i = 0; i < count; ++i) {
        const Who who{team, static_cast<int>(i + 1)};
        const PointF middle = standingOf(stage.now, who);
        const Posture posture = postureOf(stage.play, stage.map, stage.now, stage.frame, who);
        PlayerRec player;
        player.x = middle.x - halfPicture(stage.play.look);
        player.y = middle.y - halfPicture(stage.play.look);
        player.txt = document::fromUtf8(nameOf(stage.play, who), kCharset).bytes;
        player.angle = posture.angle;
        player.body = posture.pose;
        players.push_back(player);
    }
    return players;
}

PointF ballNow(const Stage& stage, std::size_t ball) {
    return quartered(ballMiddle(stage.play, stage.map, stage.now, stage.frame, ball));
}

PointF ballNext(const Stage& stage, std::size_t ball) {
    return quartered(ballMiddle(stage.play, stage.map, stage.next, stage.nextFrame, ball));
}

void addBalls(FrameRecords& records, const Stage& stage) {
    records.balls.clear();
    for (std::size_t i = 0; i < stage.now.balls.size(); ++i) {
        const PointF middle = ballNow(stage, i);
        records.balls.push_back({middle.x, middle.y + kBallFoot});
    }
    if (records.balls.empty()) {
        document::resetBalls(records.balls);
    }
}

std::vector<PointF> mapped(const CourtMap& map, const std::vector<Place>& places) {
    std::vector<PointF> points;
    points.reserve(places.size());
    for (const Place place : places) {
        points.push_back(map.at(place));
    }
    return points;
}

document::PathRec pathOf(std::size_t owner, const std::vector<PointF>& middles, PointF toCorner) {
    document::PathRec path;
    path.owner = static_cast<std::uint8_t>(owner);
    for (const PointF middle : middles) {
        path.pts.push_back({middle.x + toCorner.x, middle.y + toCorner.y});
    }
    return path;
}

void append(std::vector<document::PathRec>& paths, document::PathRec path) {
    if (!document::hasPaths(paths)) {
        paths.clear();
    }
    paths.push_back(std::move(path));
}

/// The ball beside its dribbler: from its place now to its place in the next frame, evenly.
std::vector<PointF> besideRun(const std::vector<PointF>& run, PointF ballFrom, PointF ballTo) {
    const PointF start{ballFrom.x - run.front().x, ballFrom.y - run.front().y};
    const PointF end{ballTo.x - run.back().x, ballTo.y - run.back().y};
    std::vector<PointF> points;
    for (std::size_t i = 0; i < run.size(); ++i) {
        const float part = static_cast<float>(i) / static_cast<float>(run.size() - 1);
        points.push_back(quartered(
            {run[i].x + start.x + (end.x - start.x) * part, run[i].y + start.y + (end.y - start.y) * part}));
    }
    return points;
}

void addBallPath(FrameRecords& records, std::size_t ball, const std::vector<PointF>& middles) {
    append(records.ballPaths, pathOf(ball, middles, {0, kBallFoot}));
}

void addPaths(FrameRecords& records, const Stage& stage) {
    const float half = halfPicture(stage.play.look);
    for (const Move& move : stage.frame.moves) {
        if (move.via.empty()) {
            continue;
        }
        const std::vector<PointF> via = mapped(stage.map, move.via);
        const auto ball = ballHeldBy(stage.now, move.who);
        if (move.verb == Verb::Pass) {
            const auto flight = curvePoints(ballNow(stage, *ball), via, ballNext(stage, *ball));
            addBallPath(records, *ball, naturalRun(flight));
            continue;
        }
        const PointF from = standingOf(stage.now, move.who);
        const PointF to = standingOf(stage.next, move.who);
        const std::vector<PointF> run = naturalRun(curvePoints(from, via, to));
        auto& paths = move.who.team == Team::Offence ? records.offPaths : records.defPaths;
        append(paths, pathOf(static_cast<std::size_t>(move.who.number - 1), run, {-half, -half}));
        if (ball) {
            addBallPath(records, *ball, besideRun(run, ballNow(stage, *ball), ballNext(stage, *ball)));
        }
    }
}

FrameRecords recordsOf(const Stage& stage) {
    FrameRecords records;
    records.offPlayers = playersOf(stage, Team::Offence, stage.now.offence.size());
    if (!stage.now.defence.empty()) {
        records.defPlayers = playersOf(stage, Team::Defence, stage.now.defence.size());
    }
    addBalls(records, stage);
    if (!stage.isLast) {
        addPaths(records, stage);
    }
    addMovementLines(records, stage.play, stage.map, stage.frame, stage.now, stage.next);
    addFloorObjects(records, stage.play, stage.map, stage.frame);
    return records;
}

} // namespace

std::vector<FrameRecords> stage(const PlayScript& play) {
    const CourtMap map(play.look.court);
    const std::vector<Moment> moments = momentsOf(play);
    std::vector<FrameRecords> frames;
    for (std::size_t i = 0; i < play.frames.size(); ++i) {
        const bool isLast = i + 1 == play.frames.size();
        const Frame& next = isLast ? play.frames[i] : play.frames[i + 1];
        frames.push_back(recordsOf({play, map, play.frames[i], next, moments[i], moments[i + 1], isLast}));
    }
    return frames;
}

} // namespace zeltrona::plays
