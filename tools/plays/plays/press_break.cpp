#include "tools/plays/playbook.h"

namespace zeltrona::plays {

PlayScript pressBreak() {
    PlayScript play;
    play.file = "Press-break";
    play.title = "Press break against man-to-man";
    play.heading = {"4 inbounds, 1 and 2 free each other, 3 comes to the middle, 5 is deep.",
                    "Always three passes open: up the line, middle, and back.",
                    "Over half court: go on and score, two against one."};
    play.look.court = 3;
    play.look.defence = rgb(40, 40, 50);
    play.howDefended = Defence::ManToMan;
    play.offence = {{-1.8, 22.8}, {1.8, 22.8}, {4.8, 15.0}, {1.4, 27.6}, {-3.0, 7.0}};
    play.balls = {o(4)};
    play.frames = {
        {.note = "2 screens for 1 near the free-throw line.", .moves = {screen(o(2), {-0.2, 21.6})}},
        {.note = "1 comes to the ball-side corner, 2 rolls up the other side.",
         .moves = {cut(o(1), {4.6, 24.6}, {{0.2, 24.4}}), cut(o(2), {-4.4, 20.6}), slide(x(1), {3.0, 23.4})}},
        {.note = "4 inbounds to 1. X4 leaves his man at once.", .moves = {pass(o(4), o(1))}},
        {.note = "X4 comes to trap 1. 3 flashes to the middle, 4 is the outlet behind.",
         .moves = {cut(o(3), {1.2, 18.2}, {{2.4, 14.4}}), cut(o(4), {-1.8, 25.4}), slide(x(4), {3.4, 25.6}),
                   slide(x(1), {4.4, 23.1})},
         .labels = {{"trap", {5.7, 21.2}}}},
        {.note = "1 passes between the two to 3; 2 is off up the sideline.",
         .moves = {pass(o(1), o(3)), cut(o(2), {-6.0, 13.0}, {{-6.6, 18.0}}), slide(x(2), {-4.4, 15.4}),
                   slide(x(4), {2.6, 23.8}), slide(x(1), {4.0, 22.4})}},
        {.note = "3 turns and leads 2 over the half-court line.",
         .moves = {pass(o(3), o(2)), cut(o(5), {2.0, 4.0}, {{-0.6, 6.8}}), slide(x(2), {-4.6, 14.6})}},
        {.note = "2 attacks at full speed. X5 is alone against two.",
         .moves = {dribble(o(2), {-2.2, 5.4}, {{-5.0, 8.6}}), slide(x(2), {-3.6, 10.0}),
                   slide(x(5), {-0.8, 3.6})}},
        {.note = "X5 stops the ball: the last pass to 5 is the lay-up.",
         .moves = {pass(o(2), o(5)), slide(x(5), {-0.8, 3.6}), slide(x(2), {-2.8, 7.4})}},
    };
    return play;
}

} // namespace zeltrona::plays
