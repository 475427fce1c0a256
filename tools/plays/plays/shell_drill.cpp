#include "tools/plays/playbook.h"

namespace zeltrona::plays {

PlayScript shellDrill() {
    const Color ink = rgb(20, 60, 110);
    PlayScript play;
    play.file = "Shell-drill";
    play.title = "Shell drill: four against four";
    play.heading = {"Move while the ball is in the air, not after it has landed.",
                    "One pass away: deny. Two passes away: help, one foot in the lane.",
                    "The offence only passes until the coach calls for the drive."};
    play.look.court = 5;
    play.look.parquet = false;
    play.look.floor = rgb(224, 232, 236);
    play.look.offence = rgb(190, 190, 190);
    play.look.offenceText = 0;
    play.look.defence = rgb(20, 90, 160);
    play.howDefended = Defence::ManToMan;
    play.offence = {slot(Side::Left), slot(Side::Right), {-6.0, 4.8}, {6.0, 4.8}};
    play.balls = {o(1)};
    play.frames = {
        {.note = "1 has the ball: X1 presses, X2 and X3 deny, X4 helps.",
         .moves = {pass(o(1), o(2))},
         .labels = {{"ball", {-4.3, 7.5}, ink}, {"help", {4.2, 3.2}, ink}}},
        {.note = "All four have moved with the pass. Now 2 goes to the wing.", .moves = {pass(o(2), o(4))}},
        {.note = "Ball on the wing: X3 is two passes away, in the middle of the lane.",
         .moves = {pass(o(4), o(2))},
         .labels = {{"help side", {0.2, 3.4}, ink}}},
        {.note = "Skip pass over the top: sprint, then short steps at the close-out.",
         .moves = {pass(o(2), o(3), {{-1.4, 8.8}})}},
        {.note = "3 drives the baseline. X4 meets him outside the lane, X2 drops for X4.",
         .moves = {dribble(o(3), {-3.7, 1.8}, {{-5.8, 2.6}}), slide(x(3), {-4.6, 3.2}),
                   slide(x(4), {-2.3, 1.9}), slide(x(2), {2.2, 3.4}), slide(x(1), {-1.2, 5.6})},
         .shades = {{{-3.9, 1.9}, 0.7, 0.7, rgb(250, 224, 170)}}},
        {.note = "The ball is stopped and goes out to 4: X2 closes out, X4 takes the man of X2.",
         .moves = {pass(o(3), o(4), {{0.6, 5.4}}), slide(x(2), {4.7, 4.3}), slide(x(4), {2.4, 6.2}),
                   slide(x(3), {-2.6, 3.0})}},
        {.note = "Everybody talks until each man has his man again.",
         .moves = {slide(x(2), {4.7, 4.3}), slide(x(4), {2.1, 7.4})},
         .labels = {{"talk!", {0, 10.8}, ink, 12, true}}},
    };
    return play;
}

} // namespace zeltrona::plays
