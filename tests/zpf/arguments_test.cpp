#include "tools/zpf/arguments.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace zeltrona::zpf {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::array kOptions{OptionForm{'o', "output", "FOLDER", "where pictures go;\nit is made"},
                              OptionForm{'q', "quiet", "", "say nothing"},
                              OptionForm{'\0', "json", "", "as JSON"}};
constexpr CommandForm kCommand{"draw", "PLAY...", "Draws.", kOptions};

Arguments parse(const std::vector<std::string_view>& words) {
    return parseArguments(kCommand, words);
}

TEST(ParseArguments, OptionsAndOperandsMayStandInAnyOrder) {
    const Arguments found = parse({"a.zpf", "-o", "out", "b.zpf", "--json"});
    EXPECT_THAT(found.operands, ElementsAre("a.zpf", "b.zpf"));
    EXPECT_EQ(found.valueOf("output", "."), "out");
    EXPECT_TRUE(found.has("json"));
    EXPECT_FALSE(found.has("quiet"));
    EXPECT_EQ(found.fault, "");
}

TEST(ParseArguments, ArgumentOfAnOptionMayStandInTheSameWord) {
    for (const char* word : {"-oout", "--output=out"}) {
        EXPECT_EQ(parse({word}).valueOf("output", "."), "out") << word;
    }
    EXPECT_EQ(parse({"-qoout"}).valueOf("output", "."), "out") << "letters share a dash";
    EXPECT_EQ(parse({"--output="}).valueOf("output", "."), "") << "given, and empty";
    EXPECT_EQ(parse({}).valueOf("output", "."), ".");
}

TEST(ParseArguments, LastOneGivenCounts) {
    EXPECT_EQ(parse({"-oa", "--output", "b"}).valueOf("output", "."), "b");
}

TEST(ParseArguments, TwoDashesEndTheOptions) {
    EXPECT_THAT(parse({"--", "-o", "--"}).operands, ElementsAre("-o", "--"));
    EXPECT_THAT(parse({"-"}).operands, ElementsAre("-"));
}

TEST(ParseArguments, FaultsAreToldInPlainWords) {
    EXPECT_THAT(parse({"--dance"}).fault, HasSubstr("'--dance'"));
    EXPECT_THAT(parse({"-x"}).fault, HasSubstr("'-x'"));
    EXPECT_THAT(parse({"-o"}).fault, HasSubstr("'-o' needs an argument"));
    EXPECT_THAT(parse({"--output"}).fault, HasSubstr("'--output' needs an argument"));
    EXPECT_THAT(parse({"--quiet=1"}).fault, HasSubstr("'--quiet' takes no argument"));
}

TEST(HelpText, TellsUseAndEveryOption) {
    EXPECT_EQ(helpText(kCommand), "Usage: zpf draw [OPTION...] PLAY...\n"
                                  "Draws.\n\n"
                                  "  -o, --output=FOLDER      where pictures go;\n"
                                  "                           it is made\n"
                                  "  -q, --quiet              say nothing\n"
                                  "      --json               as JSON\n"
                                  "  -h, --help               show this help and end\n");
}

TEST(ParseNumber, TakesDigitsWithinTheLimits) {
    EXPECT_EQ(parseNumber("8", 1, 8), 8);
    for (const char* text : {"", "9", "0", "+1", "-1", "1x", " 1", "99999999999"}) {
        EXPECT_EQ(parseNumber(text, 1, 8), std::nullopt) << text;
    }
    EXPECT_EQ(parseNumber("-0", 0, 8), std::nullopt);
}

} // namespace
} // namespace zeltrona::zpf
