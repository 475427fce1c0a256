#include "tools/plays/playbook.h"

namespace zeltrona::plays {

PlayScript giveAndGo() {
    PlayScript play;
    play.file = "Give-and-go";
    play.title = "Give and go";
    play.heading = {"The oldest play of all: pass, and cut to the basket.",
                    "The step away is what makes the cut work."};
    play.look.court = 2;
    play.look.parquet = false;
    play.look.floor = rgb(250, 238, 212);
    play.look.bodies = true;
    play.look.offence = rgb(60, 150, 80);
    play.look.defence = rgb(225, 225, 225);
    play.look.offenceText = 0;
    play.look.defenceText = 0;
    play.howDefended = Defence::ManToMan;
    play.offence = {{-0.8, 9.6}, {5.4, 6.8}};
    play.balls = {o(1)};
    play.frames = {
        {.note = "1 passes to the wing. X1 relaxes for a moment.", .moves = {pass(o(1), o(2))}},
        {.note = "1 steps away from the ball and takes X1 with him.", .moves = {cut(o(1), {-2.9, 8.2})}},
        {.note = "Change of speed: 1 cuts in front of X1 to the basket.",
         .moves = {cut(o(1), {1.7, 3.7}, {{0.4, 7.6}}), slide(x(1), {-0.9, 4.4})},
         .labels = {{"go!", {3.4, 4.6}, rgb(30, 90, 50), 10}}},
        {.note = "2 returns the ball with a bounce pass ahead of the cutter.",
         .moves = {pass(o(2), o(1)), slide(x(1), {-0.5, 3.6})}},
        {.note = "1 lays it in; 2 goes back for balance.",
         .moves = {shoot(o(1)), cut(o(2), {2.4, 9.4}), slide(x(1), {-0.5, 3.6})}},
    };
    return play;
}

} // namespace zeltrona::plays
