#include "tests/zpf/check/checked_play.h"

#include <gtest/gtest.h>

namespace zeltrona::zpf {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> inConfig(const std::string& lines) {
    return shortFindingsOf("[Config]\n" + lines + "[Frame1]\nframe=1\n");
}

TEST(ConfigCheck, ValuesThatReadAsAnotherAreTold) {
    EXPECT_THAT(inConfig("court=0\nbodyType=2\ncourtTexture=yes\nuseTexture=-1\nline=0\ncolorOff=16777216\n"
                         "colorDef=12.5\n"),
                ElementsAre("bad-value [Config] court 2", "bad-value [Config] bodyType 3",
                            "bad-value [Config] courtTexture 4", "bad-value [Config] useTexture 5",
                            "bad-value [Config] line 6", "bad-value [Config] colorOff 7",
                            "bad-value [Config] colorDef 8"));
    EXPECT_THAT(inConfig("court=9\nbodyType=1\ncourtTexture=0\nuseTexture=1\nline=12\ncolorOff=16777215\n"),
                IsEmpty());
}

TEST(ConfigCheck, LabelLongerThanEightCharactersIsCut) {
    EXPECT_THAT(shortFindingsOf("[Config]\ntxtOff0=12345678\ntxtDef0=123456789\n[Frame1]\nframe=1\noff0=1,2\n"
                                "def0=1,2\n"),
                ElementsAre("cut [Config] txtDef0 3"));
}

TEST(ConfigCheck, TextsLongerThanTheirBufferAreCut) {
    const std::string fits(253, 'a');
    EXPECT_THAT(
        inConfig("txtTitle=" + fits + "\ntxtHead=" + fits + "\nNotes1=" + std::string(498, 'b') + "\n"),
        IsEmpty());
    EXPECT_THAT(
        inConfig("txtTitle=" + fits + "a\ntxtHead=" + fits + "a\nNotes1=" + std::string(499, 'b') + "\n"),
        ElementsAre("cut [Config] txtTitle 2", "cut [Config] txtHead 3", "cut [Config] Notes1 4"));
}

TEST(ConfigCheck, NoteOfAFrameThatIsNotThereIsStale) {
    EXPECT_THAT(inConfig("Notes0=\nNotes1=Cut\nNotes2=\n"),
                ElementsAre("stale-key [Config] Notes0 2", "stale-key [Config] Notes2 4"));
}

TEST(ConfigCheck, SlotThatNoFrameUsesIsStale) {
    EXPECT_THAT(inConfig("txtOff0=4\nskinOff0=1\nskinDef3=1\n"),
                ElementsAre("stale-key [Config] txtOff0 2", "stale-key [Config] skinDef3 4"));
}

TEST(ConfigCheck, FontIsANameAndANumberEachWithAComma) {
    EXPECT_THAT(inConfig("font=Arial,238,\n"), IsEmpty());
    EXPECT_THAT(inConfig("font=\n"), IsEmpty());
    EXPECT_THAT(inConfig("font=Arial,238\n"), ElementsAre("no-closing-comma [Config] font 2"));
    EXPECT_THAT(inConfig("font=Arial\n"), ElementsAre("no-closing-comma [Config] font 2"));
    EXPECT_THAT(inConfig("font=Arial, Bold,238,\n"), ElementsAre("comma-in-text [Config] font 2"));
    EXPECT_THAT(inConfig("font=Arial,238,1,\n"), ElementsAre("extra-field [Config] font 2"));
}

TEST(ConfigCheck, CharactersAreThoseOfTheFontsCharacterSet) {
    EXPECT_THAT(inConfig("txtTitle=\x81\n"), ElementsAre("lost-character [Config] txtTitle 2"));
    EXPECT_THAT(inConfig("font=Arial,204,\ntxtTitle=\x81\n"), IsEmpty()) << "a letter in Cyrillic";
}

} // namespace
} // namespace zeltrona::zpf
