#include "tools/plays/playbook.h"

namespace zeltrona::plays {

PlayScript horns() {
    PlayScript play;
    play.file = "Horns";
    play.title = "Horns: ball screen, roll and pop";
    play.heading = {"4 and 5 stand above the elbows, 2 and 3 hold the corners.",
                    "1 takes either side; the other big man pops to the top.",
                    "Read the help: drive, roll, back to 4, high-low, corner."};
    play.howDefended = Defence::ManToMan;
    play.offence = {{0, 10.4}, corner(Side::Right), corner(Side::Left), {-2.3, 6.8}, {2.3, 6.8}};
    play.balls = {o(1)};
    play.frames = {
        {.note = "5 leaves the elbow and screens for 1; 2 and 3 stay wide in the corners.",
         .moves = {screen(o(5), {1.6, 9.2})}},
        {.note = "1 drives off the shoulder of 5. X5 has to step up, X1 trails.",
         .moves = {dribble(o(1), {3.8, 7.2}, {{2.7, 10.6}}), slide(x(1), {2.7, 8.4}),
                   slide(x(5), {2.9, 5.7})}},
        {.note = "5 rolls to the basket, 4 pops to the top. X4 must tag the roller.",
         .moves = {cut(o(5), {1.6, 3.6}, {{1.0, 7.4}}), cut(o(4), {-1.0, 9.2}), slide(x(4), {-0.4, 4.6}),
                   slide(x(5), {2.0, 4.5})},
         .labels = {{"roll", {-0.1, 6.5}}, {"pop", {-2.5, 8.6}}}},
        {.note = "X4 is caught inside: 1 throws back to 4 on top.",
         .moves = {pass(o(1), o(4)), slide(x(5), {0.4, 3.2}), slide(x(1), {3.3, 5.5})}},
        {.note = "High-low: 5 seals X5 under the basket, 4 passes over the top.",
         .moves = {pass(o(4), o(5), {{1.3, 7.6}}), slide(x(5), {0.4, 3.4}), slide(x(1), {3.3, 5.5})}},
        {.note = "5 finishes. If X3 or X2 helps, the corner is open.",
         .moves = {shoot(o(5)), slide(x(5), {0.4, 3.4})}},
    };
    return play;
}

} // namespace zeltrona::plays
