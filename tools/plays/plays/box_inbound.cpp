#include "tools/plays/playbook.h"

namespace zeltrona::plays {

PlayScript boxInbound() {
    PlayScript play;
    play.file = "Box-inbound";
    play.title = "Baseline inbound: box, screen the screener";
    play.heading = {"3 slaps the ball, then everybody moves in turn.",
                    "First look: 5 at the block. Second look: 2 coming off 4.", "1 is the safety on top."};
    play.look.parquet = false;
    play.look.floor = rgb(252, 242, 218);
    play.look.offence = rgb(150, 30, 60);
    play.look.defence = rgb(70, 80, 95);
    play.look.line = rgb(30, 60, 120);
    play.howDefended = Defence::ManToMan;
    play.offence = {{-2.5, 6.2}, {2.7, 3.1}, {4.0, 0.1}, {2.5, 6.2}, {-2.7, 3.1}};
    play.balls = {o(3)};
    play.frames = {
        {.note = "2 runs across the lane and screens the man of 5.", .moves = {screen(o(2), {-1.6, 3.9})}},
        {.note = "5 comes over the top to the ball-side block: first look.",
         .moves = {cut(o(5), {2.7, 2.7}, {{-1.6, 5.4}, {1.2, 3.6}}), slide(x(5), {0.6, 3.0})}},
        {.note = "4 comes down at once to screen for 2, the screener.",
         .moves = {screen(o(4), {0.1, 5.2}), slide(x(5), {1.4, 2.1})}},
        {.note = "2 comes off 4 to the wing, 1 drops back for safety.",
         .moves = {cut(o(2), {5.0, 6.2}, {{-0.9, 7.0}}), cut(o(1), {-1.2, 10.2}), slide(x(2), {2.4, 6.6}),
                   slide(x(5), {1.4, 2.1})}},
        {.note = "3 passes to 2 for the shot.",
         .moves = {pass(o(3), o(2)), slide(x(2), {3.9, 5.7}), slide(x(5), {1.4, 2.1})}},
        {.note = "2 shoots; 3 steps in to the corner as the second shooter.",
         .moves = {shoot(o(2)), cut(o(3), corner(Side::Right)), slide(x(5), {1.4, 2.1})}},
    };
    return play;
}

} // namespace zeltrona::plays
