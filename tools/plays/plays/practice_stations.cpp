#include "tools/plays/playbook.h"

namespace zeltrona::plays {

namespace {

const Color kCone = rgb(230, 90, 20);
const Color kInk = rgb(20, 30, 90);

std::vector<Mark> cones() {
    return {{{-4.6, 23.4}, kCone}, {{-4.6, 20.6}, kCone}, {{-4.6, 17.8}, kCone}, {{5.2, 5.0}, kInk}};
}

std::vector<Label> names() {
    return {{"slalom", {-6.7, 20.6}, kInk, 9, false, true, false},
            {"pass and cut", {6.6, 24.2}, kInk, 9, true, false, false},
            {"shooting", {5.6, 1.6}, kInk, 9, false, false, false},
            {"walking", {1.6, 17.2}, rgb(170, 20, 20), 8, false, false, true}};
}

std::vector<Shade> floors() {
    return {{{4.2, 22.2}, 1.8, 3.4, rgb(214, 166, 104)}};
}

/// Every style of line that the moves of this practice do not draw themselves.
std::vector<FreeLine> signs() {
    return {{0, {{0.6, 13.4}, {0.6, 11.4}}, false},   {1, {{-0.6, 13.4}, {-0.6, 11.4}}, false},
            {2, {{1.8, 13.4}, {1.8, 11.4}}, false},   {3, {{-1.8, 13.4}, {-1.8, 11.4}}, false},
            {4, {{-3.0, 13.4}, {-3.0, 11.4}}, false}, {4, {{6.6, 11.6}, {6.0, 7.2}, {2.6, 4.4}}, true}};
}

std::vector<Label> namesAndSigns() {
    std::vector<Label> labels = names();
    labels.push_back({"shot", {-3.0, 10.5}, kInk});
    labels.push_back({"screen", {-1.8, 10.2}, kInk});
    labels.push_back({"pass", {-0.6, 10.5}, kInk});
    labels.push_back({"cut", {0.6, 10.7}, kInk});
    labels.push_back({"dribble", {1.8, 10.1}, kInk});
    return labels;
}

} // namespace

PlayScript practiceStations() {
    PlayScript play;
    play.file = "Practice-stations";
    play.title = "Practice: three stations on one court";
    play.heading = {"Eight minutes at each station, then everybody changes.",
                    "Left: dribble slalom. Right: pass and cut. Far basket: catch and shoot.",
                    "C is the coach, D the defender who closes out."};
    play.look.court = 6;
    play.look.offence = rgb(20, 110, 130);
    play.look.defence = rgb(90, 90, 90);
    play.look.line = kInk;
    play.look.lineWidth = 1;
    play.defenceNames = {"C", "D"};
    play.offence = {{-4.6, 25.8}, {4.4, 24.6}, {2.6, 19.6}, {-4.8, 6.2}};
    play.defence = {{1.6, 2.6}, {-1.8, 3.8}};
    play.balls = {o(1), o(2), x(1)};
    play.frames = {
        {.note = "Slalom with the left hand; 2 passes and follows; C feeds the shooter.",
         .moves = {dribble(o(1), {-4.6, 19.2}, {{-2.8, 23.6}, {-6.6, 20.8}}), pass(o(2), o(3)),
                   pass(x(1), o(4), {{-1.4, 6.4}}), slide(x(2), {-3.6, 4.6}, {{-3.4, 3.4}})},
         .shades = floors(),
         .labels = namesAndSigns(),
         .marks = cones(),
         .lines = signs()},
        {.note = "2 turns and screens for 3; 4 steps away as D closes out.",
         .moves = {dribble(o(1), {-4.6, 15.6}, {{-2.8, 17.6}}), screen(o(2), {4.2, 20.6}, {{6.2, 22.6}}),
                   cut(o(4), {-5.6, 4.0}, {{-6.6, 5.8}}), slide(x(2), {-4.2, 3.6})},
         .shades = floors(),
         .labels = names(),
         .marks = cones()},
        {.note = "3 dribbles around the screen of 2; 4 shoots over D.",
         .moves = {dribble(o(3), {5.8, 18.2}, {{3.0, 17.2}}), shoot(o(4))},
         .shades = floors(),
         .labels = names(),
         .marks = cones()},
        {.note = "Rotate: slalom to passing, passing to shooting, shooting to slalom.",
         .moves = {cut(o(1), {4.4, 24.6}, {{-0.6, 19.0}}), cut(o(3), {-4.8, 6.2}, {{0.4, 9.0}}),
                   cut(o(4), {-4.6, 25.8}, {{-7.0, 16.0}})},
         .labels = names(),
         .marks = cones()},
    };
    return play;
}

} // namespace zeltrona::plays
