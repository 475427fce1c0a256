#include "tools/zpf/json_text.h"
#include "tools/zpf/valid_utf8.h"

#include <gtest/gtest.h>
#include <string_view>

namespace zeltrona::zpf {
namespace {

constexpr const char* kMark = "\xEF\xBF\xBD";

TEST(JsonText, CommasComeByThemselves) {
    JsonText json;
    json.open('[').open('{').key("a").number(-1).key("b").open('[').close(']').close('}').flag(true).close(
        ']');
    EXPECT_EQ(json.take(), R"([{"a": -1, "b": []}, true])");
}

TEST(JsonText, MarksAndControlCharactersAreEscaped) {
    EXPECT_EQ(JsonText().text("a\"\\\n\x01").take(), "\"a\\\"\\\\\\u000a\\u0001\"");
}

TEST(ValidUtf8, WellFormedCharactersStay) {
    for (const std::string_view text :
         {"a", "\xC5\xA1", "\xE2\x82\xAC", "\xF0\x9F\x8F\x80", "\xEF\xBF\xBF"}) {
        EXPECT_EQ(validUtf8(text), text);
    }
}

TEST(ValidUtf8, OtherBytesBecomeTheMark) {
    EXPECT_EQ(validUtf8("a\xFF"
                        "b"),
              std::string("a") + kMark + "b");
    EXPECT_EQ(validUtf8("\xC5"), kMark);
    EXPECT_EQ(validUtf8("\xC5z"), std::string(kMark) + "z");
    EXPECT_EQ(validUtf8("\xC0\x80"), std::string(kMark) + kMark) << "longer than needed";
    EXPECT_EQ(validUtf8("\xE0\x80\x80"), std::string(kMark) + kMark + kMark);
    EXPECT_EQ(validUtf8("\xED\xA0\x80"), std::string(kMark) + kMark + kMark) << "half a pair";
    EXPECT_EQ(validUtf8("\xF4\x90\x80\x80"), std::string(kMark) + kMark + kMark + kMark) << "beyond the last";
}

} // namespace
} // namespace zeltrona::zpf
