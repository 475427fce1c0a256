#include "tools/zpf/printable.h"

#include <gtest/gtest.h>

namespace zeltrona::zpf {
namespace {

TEST(Printable, TextStaysAsItIs) {
    EXPECT_EQ(printable("Ko\xC5\xA1: 1-2, \"x\"\nnext"), "Ko\xC5\xA1: 1-2, \"x\"\nnext");
    EXPECT_EQ(printable("\xE8 is no UTF-8"), "\xE8 is no UTF-8") << "as in a file's name";
}

TEST(Printable, ControlCharactersAreShownAndNotObeyed) {
    EXPECT_EQ(printable("\x1B[31mred\a\r\x7F"), "\\x1B[31mred\\x07\\x0D\\x7F");
    EXPECT_EQ(printable(std::string_view("a\0b", 3)), "a\\x00b");
}

TEST(Printable, UpperControlCharactersToo) {
    EXPECT_EQ(printable("\xC2\x9B"
                        "2J"),
              "\\x9B2J");
    EXPECT_EQ(printable("\xC2\xA0"), "\xC2\xA0") << "a blank that does not break is none";
    EXPECT_EQ(printable("\xC2"), "\xC2");
}

} // namespace
} // namespace zeltrona::zpf
