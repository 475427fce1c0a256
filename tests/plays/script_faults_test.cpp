#include "tools/plays/write_play.h"

#include <gtest/gtest.h>

namespace zeltrona::plays {
namespace {

PlayScript sound() {
    PlayScript play;
    play.title = "Give and go";
    play.heading = {"Pass and cut."};
    play.offence = {{-2, 9}, {5, 6}};
    play.balls = {o(1)};
    play.frames = {{.note = "First.", .moves = {pass(o(1), o(2))}},
                   {.note = "Second.", .moves = {shoot(o(2))}}};
    return play;
}

TEST(FaultOf, ASoundScriptIsNone) {
    EXPECT_EQ(faultOf(sound()), "");
}

struct Row {
    const char* name;
    void (*spoil)(PlayScript&);
};
class FaultOfScript : public testing::TestWithParam<Row> {};

TEST_P(FaultOfScript, IsTold) {
    PlayScript play = sound();
    GetParam().spoil(play);
    EXPECT_NE(faultOf(play), "");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FaultOfScript,
    testing::Values(Row{"NoTitle", [](PlayScript& p) { p.title.clear(); }},
                    Row{"FiveLines", [](PlayScript& p) { p.heading.assign(5, "x"); }},
                    Row{"LongHeading", [](PlayScript& p) { p.heading.assign(3, std::string(90, 'x')); }},
                    Row{"LongNote", [](PlayScript& p) { p.frames[0].note.assign(100, 'x'); }},
                    Row{"NoNote", [](PlayScript& p) { p.frames[1].note.clear(); }},
                    Row{"CommaInAText",
                        [](PlayScript& p) {
                            p.frames[0].labels = {{"here, now", {0, 5}}};
                        }},
                    Row{"LetterThatTheSetLacks", [](PlayScript& p) { p.frames[0].note = "Œ"; }},
                    Row{"TooFewNames", [](PlayScript& p) { p.offenceNames = {"1"}; }},
                    Row{"NameZero",
                        [](PlayScript& p) {
                            p.offenceNames = {"1", "0"};
                        }},
                    Row{"LongName",
                        [](PlayScript& p) {
                            p.offenceNames = {"1", "two"};
                        }},
                    Row{"ShotWithoutABall", [](PlayScript& p) { p.frames[0].moves = {shoot(o(2))}; }}),
    [](const testing::TestParamInfo<Row>& param) { return param.param.name; });

} // namespace
} // namespace zeltrona::plays
