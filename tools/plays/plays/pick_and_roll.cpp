#include "tools/plays/playbook.h"

namespace zeltrona::plays {

PlayScript pickAndRoll() {
    const Color glow = rgb(214, 166, 104);
    PlayScript play;
    play.file = "Pick-and-roll";
    play.title = "Pick and roll, three against three";
    play.heading = {"The screen comes from behind the defender, feet wide and still.",
                    "1 goes shoulder to shoulder past 5; 5 opens towards the ball.",
                    "Two defenders on the ball means that somebody is free."};
    play.look.bodies = true;
    play.look.offence = rgb(235, 120, 40);
    play.look.defence = rgb(120, 170, 230);
    play.look.offenceText = 0;
    play.look.defenceText = 0;
    play.offenceNames = {"1", "5", "3"};
    play.defenceNames = {"X1", "X5", "X3"};
    play.howDefended = Defence::ManToMan;
    play.offence = {{1.4, 10.2}, {3.4, 5.2}, {-6.4, 1.7}};
    play.balls = {o(1)};
    play.frames = {
        {.note = "5 sprints up and sets the screen on X1.", .moves = {screen(o(2), {3.0, 8.4})}},
        {.note = "1 drives over the screen, X1 goes over it too, X5 drops to contain.",
         .moves = {dribble(o(1), {5.6, 6.6}, {{4.6, 10.2}}), slide(x(1), {5.2, 8.7}),
                   slide(x(2), {3.9, 4.8})},
         .shades = {{{3.0, 8.4}, 1.3, 1.3, glow}}},
        {.note = "5 rolls down the middle. X3 leaves the corner to tag him.",
         .moves = {cut(o(2), {1.5, 4.0}, {{1.5, 7.4}}), slide(x(1), {5.5, 8.5}), slide(x(2), {3.9, 4.9}),
                   slide(x(3), {-0.9, 2.6})},
         .shades = {{{1.3, 3.9}, 1.1, 1.0, glow}},
         .labels = {{"roll", {1.0, 5.2}}}},
        {.note = "Pocket pass: 1 bounces it between X1 and X5.",
         .moves = {pass(o(1), o(2)), slide(x(1), {5.5, 8.5}), slide(x(2), {3.7, 3.9}),
                   slide(x(3), {-0.3, 3.4})}},
        {.note = "X3 has stopped the ball: 5 finds 3 alone in the corner.",
         .moves = {pass(o(2), o(3)), slide(x(1), {4.6, 7.6}), slide(x(2), {2.9, 2.4}),
                   slide(x(3), {-4.2, 2.4})}},
        {.note = "3 shoots before X3 is back.",
         .moves = {shoot(o(3)), slide(x(1), {4.6, 7.6}), slide(x(2), {2.9, 2.4})},
         .labels = {{"open!", {-5.2, 3.8}}}},
    };
    return play;
}

} // namespace zeltrona::plays
