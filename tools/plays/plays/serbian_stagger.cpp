#include "tools/plays/playbook.h"

namespace zeltrona::plays {

PlayScript serbianStagger() {
    const Color ink = rgb(120, 20, 20);
    PlayScript play;
    play.file = "Dupli-blok";
    play.title = "Dupli blok za šutera";
    play.heading = {"Plejmejker spušta loptu na krilo i otvara sredinu.",
                    "Četvorka i petica postavljaju dva bloka, jedan za drugim.",
                    "Šuter čita svog čuvara: istrčava gore ili seče ka košu."};
    play.look.court = 4;
    play.look.bodies = true;
    play.look.offence = rgb(235, 235, 240);
    play.look.offenceText = rgb(150, 0, 0);
    play.look.line = ink;
    play.offenceNames = {"1", "Š", "3", "4", "5"};
    play.offence = {{0.4, 10.0}, {6.4, 1.8}, {-5.8, 6.6}, {1.4, 6.4}, {-2.8, 3.2}};
    play.balls = {o(1)};
    play.frames = {
        {.note = "Lopta ide na krilo, a šuter čeka u ćošku.",
         .moves = {pass(o(1), o(3))},
         .labels = {{"šuter", {4.0, 0.8}, ink}}},
        {.note = "4 i 5 prave dupli blok; 1 se izmešta na drugu stranu.",
         .moves = {screen(o(4), {4.7, 4.4}), screen(o(5), {2.7, 6.2}, {{0.4, 3.4}}),
                   cut(o(1), {-2.8, 10.2})}},
        {.note = "Šuter istrčava iza oba bloka na vrh, između 1 i 4.",
         .moves = {cut(o(2), {2.2, 10.0}, {{3.2, 2.4}, {0.6, 7.4}})},
         .labels = {{"blok", {6.7, 4.6}, ink}, {"blok", {4.7, 6.9}, ink}}},
        {.note = "3 vraća loptu šuteru; 5 se otvara ka košu, 4 drži širinu.",
         .moves = {pass(o(3), o(2)), cut(o(5), {-0.9, 3.4}, {{1.6, 3.6}})}},
        {.note = "Slobodan šut za tri poena. Krilo i centar idu na skok.",
         .moves = {shoot(o(2)), cut(o(3), {-2.4, 3.2}, {{-5.2, 3.6}})},
         .labels = {{"šut!", {4.0, 10.0}, ink, 12}}},
    };
    return play;
}

} // namespace zeltrona::plays
