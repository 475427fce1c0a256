#include "tools/plays/playbook.h"

namespace zeltrona::plays {

PlayScript fastBreak() {
    const Color chalk = rgb(255, 255, 255);
    const Color lane = rgb(52, 60, 72);
    PlayScript play;
    play.file = "Fast-break";
    play.title = "Fast break: outlet and three lanes";
    play.heading = {"Rebound, outlet, middle: the ball is over half court in three seconds.",
                    "2 and 3 run wide to the free-throw line extended, then cut at 45 degrees.",
                    "4 is the trailer, 5 the safety."};
    play.look.court = 9;
    play.look.parquet = false;
    play.look.whiteLines = true;
    play.look.floor = rgb(28, 32, 40);
    play.look.offence = rgb(235, 110, 40);
    play.look.defence = rgb(90, 160, 210);
    play.look.offenceText = 0;
    play.look.defenceText = 0;
    play.look.line = rgb(255, 224, 120);
    play.offence = {{4.6, 24.0}, {6.2, 21.6}, {-4.8, 23.4}, {-1.8, 25.4}, {1.2, 26.6}};
    play.defence = {{0.9, 17.4}, {-1.2, 15.0}};
    play.balls = {o(5)};
    play.frames = {
        {.note = "5 rebounds and turns outside: outlet to 1. 2 and 3 are already gone.",
         .moves = {pass(o(5), o(1)), cut(o(2), {6.4, 15.4}), cut(o(3), {-6.4, 16.4}, {{-6.6, 21.0}}),
                   slide(x(1), {0.6, 12.4}), slide(x(2), {-0.6, 9.0})},
         .shades = {{{-6.3, 13}, 0.7, 8, lane}, {{6.3, 13}, 0.7, 8, lane}},
         .labels = {{"left lane", {-6.3, 8.0}, chalk},
                    {"middle", {0, 10.7}, chalk},
                    {"right lane", {6.3, 8.0}, chalk}}},
        {.note = "1 dribbles to the middle, the wings keep wide and ahead of the ball.",
         .moves = {dribble(o(1), {0.5, 13.6}, {{3.0, 20.2}}), cut(o(2), {6.3, 8.6}), cut(o(3), {-6.3, 8.6}),
                   cut(o(4), {-2.6, 19.4}), cut(o(5), {1.8, 21.4}), slide(x(1), {1.6, 8.6}),
                   slide(x(2), {0, 4.6})}},
        {.note = "1 stops X1 at the free-throw line; 2 and 3 cut to the basket.",
         .moves = {dribble(o(1), {-0.4, 8.0}), cut(o(2), {3.6, 4.4}, {{6.2, 5.8}}),
                   cut(o(3), {-3.6, 4.4}, {{-6.2, 5.8}}), cut(o(4), {-2.6, 12.0}), cut(o(5), {1.4, 15.6}),
                   slide(x(1), {0.3, 6.5}), slide(x(2), {0.1, 3.8})}},
        {.note = "Bounce pass to 2; X2 has to choose.",
         .moves = {pass(o(1), o(2)), cut(o(4), {-2.0, 8.6}), slide(x(2), {2.7, 2.4}), cut(o(3), {-1.9, 2.8}),
                   slide(x(1), {0.2, 4.6})}},
        {.note = "2 lays it in, or gives it to 3 when X2 jumps.",
         .moves = {shoot(o(2))},
         .labels = {{"trailer", {-2.0, 10.0}, chalk}}},
    };
    return play;
}

} // namespace zeltrona::plays
