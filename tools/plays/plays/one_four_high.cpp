#include "tools/plays/playbook.h"

namespace zeltrona::plays {

PlayScript oneFourHigh() {
    const Color chalk = rgb(255, 224, 120);
    PlayScript play;
    play.file = "One-four-high";
    play.title = "1-4 high: UCLA cut and backdoor lob";
    play.heading = {"Four across the free-throw line extended take the help away.",
                    "Every entry has its cut; nobody stands under the basket."};
    play.look.court = 7;
    play.look.parquet = false;
    play.look.whiteLines = true;
    play.look.floor = rgb(18, 36, 72);
    play.look.offence = rgb(240, 140, 30);
    play.look.offenceText = 0;
    play.look.line = chalk;
    play.offence = {{0, 10.2}, {6.1, 6.9}, {-6.1, 6.9}, {-2.5, 6.3}, {2.5, 6.3}};
    play.balls = {o(1)};
    play.frames = {
        {.note = "Entry to the wing: 2 meets the pass outside the arc.", .moves = {pass(o(1), o(2))}},
        {.note = "UCLA cut: 1 runs his man into 5 and cuts to the block for the lay-up.",
         .moves = {cut(o(1), {2.7, 2.4}, {{4.1, 6.6}})},
         .labels = {{"UCLA cut", {4.9, 4.6}, chalk}}},
        {.note = "Nothing there: 5 steps out to the slot.", .moves = {cut(o(5), {1.8, 9.4})}},
        {.note = "2 gives the ball to 5 while 4 goes out to screen for 3.",
         .moves = {pass(o(2), o(5)), screen(o(4), {-4.9, 5.8})}},
        {.note = "Backdoor: 3 fakes up and cuts behind his man off the screen of 4.",
         .moves = {cut(o(3), {-1.9, 3.2}, {{-5.6, 4.0}})},
         .labels = {{"backdoor", {-4.6, 2.6}, chalk}}},
        {.note = "5 throws the lob before 3 reaches the rim.", .moves = {pass(o(5), o(3), {{-1.5, 7.6}})}},
        {.note = "3 finishes, 1 and 4 rebound, 5 and 2 are back for safety.",
         .moves = {shoot(o(3)), cut(o(2), {3.0, 10.2}), cut(o(4), {-2.6, 3.6})}},
    };
    return play;
}

} // namespace zeltrona::plays
