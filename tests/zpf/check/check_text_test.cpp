#include "tools/zpf/check/check_text.h"

#include <gtest/gtest.h>

namespace zeltrona::zpf {
namespace {

const CheckResult kResult{2,
                          {{FindingKind::NoFrame, 0, "", "", "nothing \"here\""},
                           {FindingKind::Hole, 34, "Frame2", "Ball2", "Ball1 is missing"},
                           {FindingKind::LostCharacter, 35, "Config", "txt\x9A", "odd"}}};

TEST(CheckText, LinesBeginWithPlaceAndEndWithKind) {
    EXPECT_EQ(checkAsText("a b.zpf", kResult, 238),
              "a b.zpf: nothing \"here\" (no-frame)\n"
              "a b.zpf:34: [Frame2] Ball2: Ball1 is missing (hole)\n"
              "a b.zpf:35: [Config] txt\xC5\xA1: odd (lost-character)\n");
}

TEST(CheckText, CleanPlaySaysNothing) {
    EXPECT_EQ(checkAsText("play.zpf", {1, {}}, 238), "");
}

TEST(CheckText, JsonIsOneObject) {
    EXPECT_EQ(
        checkAsJson("p\xFF.zpf", kResult, 238),
        "{\"play\": \"p\xEF\xBF\xBD.zpf\", \"frames\": 2, \"findings\": ["
        "{\"kind\": \"no-frame\", \"line\": 0, \"section\": \"\", \"key\": \"\", "
        "\"text\": \"nothing \\\"here\\\"\"}, "
        "{\"kind\": \"hole\", \"line\": 34, \"section\": \"Frame2\", \"key\": \"Ball2\", "
        "\"text\": \"Ball1 is missing\"}, "
        "{\"kind\": \"lost-character\", \"line\": 35, \"section\": \"Config\", \"key\": \"txt\xC5\xA1\", "
        "\"text\": \"odd\"}]}");
    EXPECT_EQ(checkAsJson("p.zpf", {1, {}}, 238), "{\"play\": \"p.zpf\", \"frames\": 1, \"findings\": []}");
}

} // namespace
} // namespace zeltrona::zpf
