#pragma once

#include "document/records.h"
#include "tools/plays/places.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zeltrona::plays {

using document::Color;

constexpr Color rgb(int red, int green, int blue) {
    return red | green << 8 | blue << 16;
}

enum class Team { Offence, Defence };

/// A player by his place in the team, from 1.
struct Who {
    Team team = Team::Offence;
    int number = 1;
    friend bool operator==(const Who&, const Who&) = default;
};

/// What a player does within a frame. The verbs but Slide leave a movement line, each in its own style.
enum class Verb {
    Cut,     ///< runs without the ball
    Pass,    ///< sends the ball to a team mate, to where he will be in the next frame
    Dribble, ///< runs with the ball
    Screen,  ///< goes and stands in a defender's way
    Shoot,   ///< sends the ball to the basket
    Slide    ///< moves as the play asks for, without a line
};

struct Move {
    Verb verb = Verb::Cut;
    Who who;
    Who mate;               ///< who receives a pass
    Place to;               ///< where the others end
    std::vector<Place> via; ///< what pulls the way into a curve; empty for a straight one
};

/// A pale ellipse on the floor.
struct Shade {
    Place middle;
    double across = 1; ///< half of its extent, metres
    double along = 1;
    Color color = 0;
};

/// A text centred over a place. It may hold no comma: fields of the file end with one.
struct Label {
    std::string text; ///< UTF-8
    Place middle;
    Color color = 0;
    std::int16_t size = 8; ///< points
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
};

/// A triangle for a cone, a chair, a spot to remember; centred.
struct Mark {
    Place middle;
    Color color = 0;
};

/// A line that belongs to no player.
struct FreeLine {
    int style = 0;
    std::vector<Place> points; ///< when curved: on the curve, control, on the curve ...
    bool curved = false;
};

/// One frame: what is taught, what happens in it, and what lies on the floor.
struct Frame {
    std::string note{}; ///< UTF-8, below 100 characters
    std::vector<Move> moves{};
    std::vector<Shade> shades{};
    std::vector<Label> labels{};
    std::vector<Mark> marks{};
    std::vector<FreeLine> lines{};
};

/// How the defence finds its place in each frame when it has no move of its own.
enum class Defence {
    Stands,  ///< keeps its place
    ManToMan ///< number n between offence player n and the basket; closer, the nearer his man is to the ball
};

/// Colours, court and pen; the defaults are dark lines on parquet.
struct Look {
    std::int16_t court = 1;
    bool parquet = true;
    bool whiteLines = false;
    Color floor = 0xFFFFFF;
    bool bodies = false;
    Color offence = rgb(200, 60, 20);
    Color defence = rgb(30, 60, 140);
    Color offenceText = 0xFFFFFF;
    Color defenceText = 0xFFFFFF;
    Color line = rgb(20, 20, 20);
    int lineWidth = 2;
};

/// A whole play.
struct PlayScript {
    std::string file; ///< name without folder and extension
    std::string title;
    std::vector<std::string> heading; ///< up to 4 lines
    Look look;
    std::vector<std::string> offenceNames; ///< labels of up to two letters; the numbers from 1 when empty
    std::vector<std::string> defenceNames; ///< the numbers behind an X when empty
    std::vector<Place> offence;
    std::vector<Place>
        defence; ///< ManToMan needs the count alone, so empty means one for each offence player
    Defence howDefended = Defence::Stands;
    std::vector<Who> balls; ///< who holds each ball at the start
    std::vector<Frame> frames;
};

/// What stands on a player, UTF-8.
std::string nameOf(const PlayScript& play, Who who);

// The words of a play.

inline Who o(int number) {
    return {Team::Offence, number};
}
inline Who x(int number) {
    return {Team::Defence, number};
}
inline Move cut(Who who, Place to, std::vector<Place> via = {}) {
    return {Verb::Cut, who, {}, to, std::move(via)};
}
inline Move dribble(Who who, Place to, std::vector<Place> via = {}) {
    return {Verb::Dribble, who, {}, to, std::move(via)};
}
inline Move screen(Who who, Place to, std::vector<Place> via = {}) {
    return {Verb::Screen, who, {}, to, std::move(via)};
}
inline Move slide(Who who, Place to, std::vector<Place> via = {}) {
    return {Verb::Slide, who, {}, to, std::move(via)};
}
inline Move pass(Who from, Who to, std::vector<Place> via = {}) {
    return {Verb::Pass, from, to, {}, std::move(via)};
}
inline Move shoot(Who who) {
    return {Verb::Shoot, who, {}, kBasket, {}};
}

} // namespace zeltrona::plays
