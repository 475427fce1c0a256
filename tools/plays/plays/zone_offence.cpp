#include "tools/plays/playbook.h"

namespace zeltrona::plays {

PlayScript zoneOffence() {
    const Color gap = rgb(236, 246, 190);
    const Color ink = rgb(20, 80, 40);
    PlayScript play;
    play.file = "Zone-offence";
    play.title = "Against the 2-3 zone: 1-3-1 into the gaps";
    play.heading = {"Stand in the gaps, so that two defenders share one man.",
                    "The ball inside draws X5; behind him the short corner is free.",
                    "Then look across: the weak side is late."};
    play.look.parquet = false;
    play.look.floor = rgb(200, 226, 194);
    play.look.offence = rgb(30, 110, 60);
    play.look.defence = rgb(110, 60, 120);
    play.offence = {{0, 10.0}, {6.2, 6.2}, {-6.2, 6.2}, {0, 6.2}, shortCorner(Side::Right)};
    play.defence = {{-1.7, 7.5}, {1.7, 7.5}, {-4.2, 3.8}, {4.2, 3.8}, {0, 3.2}};
    play.balls = {o(1)};
    play.frames = {
        {.note = "The gaps of the 2-3 zone. 1 passes to the wing and X2 has to go out.",
         .moves = {pass(o(1), o(2)), slide(x(2), {5.0, 5.4}), slide(x(1), {0.5, 7.5}),
                   slide(x(4), {4.6, 2.6}), slide(x(5), {2.0, 3.0}), slide(x(3), {-1.6, 3.8})},
         .shades = {{{-4.0, 6.2}, 1.1, 1.1, gap}, {{4.0, 6.2}, 1.1, 1.1, gap}},
         .labels = {{"gap", {-4.0, 6.2}, ink}, {"gap", {4.0, 6.2}, ink}}},
        {.note = "4 slides to the ball side of the high post, 3 drops to the corner.",
         .moves = {cut(o(4), {2.2, 6.2}), cut(o(3), corner(Side::Left), {{-6.8, 3.8}})}},
        {.note = "Ball to the high post: the zone closes on 4.",
         .moves = {pass(o(2), o(4)), slide(x(1), {1.3, 7.3}), slide(x(2), {3.9, 6.0}),
                   slide(x(5), {1.8, 4.6}), slide(x(3), {-0.8, 3.2})}},
        {.note = "X5 stepped up: 5 dives from the short corner behind his back.",
         .moves = {cut(o(5), {2.5, 2.2}, {{3.2, 0.8}}), slide(x(4), {4.0, 2.8})},
         .shades = {{{2.0, 2.0}, 1.2, 1.0, gap}}},
        {.note = "4 drops the ball to 5. X3 is the last man and must come.",
         .moves = {pass(o(4), o(5)), slide(x(3), {0.6, 2.6}), slide(x(5), {2.0, 3.6})}},
        {.note = "Three around the ball: 5 passes across to 3 in the corner.",
         .moves = {pass(o(5), o(3), {{-2.2, 0.5}}), slide(x(3), {-4.4, 2.4}), slide(x(1), {-0.6, 6.4})}},
        {.note = "3 has time for his shot; 5 has the inside for the rebound.",
         .moves = {shoot(o(3)), cut(o(5), {1.2, 2.7})}},
    };
    return play;
}

} // namespace zeltrona::plays
