#include "tools/plays/playbook.h"

namespace zeltrona::plays {

PlayScript threeManWeave() {
    PlayScript play;
    play.file = "Three-man-weave";
    play.title = "Three-man weave over the whole court";
    play.heading = {"Pass, and run behind the man you passed to.",
                    "Three passes and a lay-up; the ball never touches the floor."};
    play.look.court = 3;
    play.look.parquet = false;
    play.look.floor = rgb(214, 222, 236);
    play.look.bodies = true;
    play.look.offence = rgb(230, 90, 60);
    play.look.offenceText = 0;
    play.look.line = rgb(30, 30, 60);
    play.offence = {{-5.2, 25.6}, {0, 26.2}, {5.2, 25.6}};
    play.balls = {o(2)};
    play.frames = {
        {.note = "2 passes to 3 and runs behind him; 1 starts up the left side.",
         .moves = {pass(o(2), o(3)), cut(o(2), {5.4, 18.6}, {{7.4, 27.6}}), cut(o(3), {1.4, 20.6}),
                   cut(o(1), {-4.6, 19.6})}},
        {.note = "3 passes to 1 and runs behind him.",
         .moves = {pass(o(3), o(1)), cut(o(3), {-5.4, 12.6}, {{-7.0, 22.4}}), cut(o(1), {-1.2, 14.4}),
                   cut(o(2), {4.6, 13.2})}},
        {.note = "1 passes to 2 and runs behind him.",
         .moves = {pass(o(1), o(2)), cut(o(1), {5.4, 6.4}, {{7.0, 15.8}}), cut(o(2), {1.2, 8.2}),
                   cut(o(3), {-5.0, 6.6})}},
        {.note = "2 stops at the free-throw line and feeds 3 at the basket.",
         .moves = {pass(o(2), o(3)), cut(o(3), {-2.3, 3.8}, {{-4.6, 4.6}}), cut(o(1), {3.4, 3.6})}},
        {.note = "3 lays it in, 1 rebounds, 2 calls for the outlet.", .moves = {shoot(o(3))}},
    };
    return play;
}

} // namespace zeltrona::plays
