#include "tools/plays/playbook.h"

namespace zeltrona::plays {

PlayScript sidelineInbound() {
    const Color chalk = rgb(255, 255, 255);
    PlayScript play;
    play.file = "Sideline-inbound";
    play.title = "Sideline inbound: zipper and back screen";
    play.heading = {"The entry is the zipper cut of 1; the shot is for 3.",
                    "The inbounder is the most dangerous man: his own defender looks at the ball."};
    play.look.court = 8;
    play.look.parquet = false;
    play.look.whiteLines = true;
    play.look.floor = rgb(14, 62, 46);
    play.look.offence = rgb(250, 210, 70);
    play.look.offenceText = 0;
    play.look.defence = rgb(150, 190, 220);
    play.look.defenceText = 0;
    play.look.line = chalk;
    play.howDefended = Defence::ManToMan;
    play.offence = {{2.8, 2.8}, {-7.0, 1.6}, {7.5, 8.6}, {-2.5, 6.4}, {2.5, 6.6}};
    play.balls = {o(3)};
    play.frames = {
        {.note = "5 walks down the lane line to screen for 1.", .moves = {screen(o(5), {1.9, 4.4})}},
        {.note = "Zipper: 1 runs up the side of 5 to the top.",
         .moves = {cut(o(1), {2.4, 10.2}, {{4.8, 6.2}}), slide(x(1), {2.0, 7.6})},
         .labels = {{"zipper", {5.0, 9.6}, chalk}}},
        {.note = "3 inbounds to 1.", .moves = {pass(o(3), o(1))}},
        {.note = "5 comes back up, behind X3, for the back screen.",
         .moves = {screen(o(5), {5.3, 6.6}, {{2.8, 6.6}})}},
        {.note = "3 cuts off the back screen straight to the basket.",
         .moves = {cut(o(3), {1.7, 3.2}, {{4.4, 8.4}}), slide(x(3), {6.4, 7.6})}},
        {.note = "1 throws the lob to 3; 2 in the corner holds the last helper.",
         .moves = {pass(o(1), o(3), {{3.6, 7.2}}), slide(x(3), {4.6, 4.6})}},
        {.note = "3 finishes. 5 and 4 go to the boards.",
         .moves = {shoot(o(3)), cut(o(5), {3.2, 3.6}), cut(o(4), {-2.4, 3.4}), slide(x(3), {4.6, 4.6})}},
    };
    return play;
}

} // namespace zeltrona::plays
