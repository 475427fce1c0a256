#include "tools/plays/playbook.h"

namespace zeltrona::plays {

namespace {

constexpr Place kLeftBlock{-3.1, 2.6};
constexpr Place kRightBlock{3.1, 2.6};

} // namespace

PlayScript flex() {
    PlayScript play;
    play.file = "Flex";
    play.title = "Flex: the continuity";
    play.heading = {"Every guard-to-guard pass starts a baseline cut and a down screen.",
                    "The cutter reads his defender: over the screen or under it.",
                    "Screen the screener: the second shot is often the better one."};
    play.look.court = 4;
    play.look.parquet = false;
    play.look.floor = rgb(206, 226, 240);
    play.look.offence = rgb(20, 70, 140);
    play.look.line = rgb(150, 20, 20);
    play.offence = {slot(Side::Left), slot(Side::Right), corner(Side::Left), corner(Side::Right), kLeftBlock};
    play.balls = {o(1)};
    play.frames = {
        {.note = "Guard to guard: the pass from 1 to 2 is the sign for the flex cut.",
         .moves = {pass(o(1), o(2))}},
        {.note = "3 cuts off the screen of 5 to the ball-side block. 2 looks for him first.",
         .moves = {cut(o(3), kRightBlock, {{-3.4, 0.6}, {0.6, 0.6}})},
         .labels = {{"flex cut", {0, 2.9}, rgb(150, 20, 20)}}},
        {.note = "Screen the screener: 1 goes down and screens for 5.", .moves = {screen(o(1), {-2.5, 4.2})}},
        {.note = "5 comes up to the slot for the shot, 1 opens to the corner.",
         .moves = {cut(o(5), slot(Side::Left), {{-5.2, 5.6}}), cut(o(1), corner(Side::Left))}},
        {.note = "2 reverses to 5: the same cut begins on the other side.", .moves = {pass(o(2), o(5))}},
        {.note = "4 cuts off the screen of 3 to the left block.",
         .moves = {cut(o(4), kLeftBlock, {{3.4, 0.6}, {-0.6, 0.6}})},
         .labels = {{"flex cut", {0, 2.9}, rgb(150, 20, 20)}}},
        {.note = "Screen the screener again: 2 goes down for 3.", .moves = {screen(o(2), {2.5, 4.2})}},
        {.note = "3 comes up, 2 opens to the corner. The set is the first one: play on.",
         .moves = {cut(o(3), slot(Side::Right), {{5.2, 5.6}}), cut(o(2), corner(Side::Right))}},
    };
    return play;
}

} // namespace zeltrona::plays
