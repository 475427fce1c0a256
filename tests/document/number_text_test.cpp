#include "document/number_text.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

using namespace zeltrona::document;

namespace {

TEST(SingleText, WholeNumbersHaveNoPoint) {
    EXPECT_EQ(singleText(10.0F), "10");
    EXPECT_EQ(singleText(0.0F), "0");
    EXPECT_EQ(singleText(-7.0F), "-7");
    EXPECT_EQ(singleText(1000.0F), "1000");
    EXPECT_EQ(singleText(1234567.0F), "1234567");
}

TEST(SingleText, FractionsHaveAPointAndNoTrailingZeros) {
    EXPECT_EQ(singleText(92.5F), "92.5");
    EXPECT_EQ(singleText(188.25F), "188.25");
    EXPECT_EQ(singleText(-0.5F), "-0.5");
    EXPECT_EQ(singleText(0.1F), "0.1");
    EXPECT_EQ(singleText(100.125F), "100.125");
}

TEST(SingleText, RoundsToSevenSignificantDigits) {
    EXPECT_EQ(singleText(1.0F / 3.0F), "0.3333333");
    EXPECT_EQ(singleText(200.0F / 3.0F), "66.66666");
    EXPECT_EQ(singleText(0.012345678F), "0.01234568");
    EXPECT_EQ(singleText(9.9999999F), "10");
    EXPECT_EQ(singleText(12345.678F), "12345.68");
}

TEST(SingleText, HasNoExponentOutsideTheBoardEither) {
    EXPECT_EQ(singleText(16777216.0F), "16777220");
    EXPECT_EQ(singleText(1.0e12F), "1000000000000");
    EXPECT_EQ(singleText(1.0e-9F), "0.000000001");
    EXPECT_EQ(singleText(std::numeric_limits<float>::max()), "3402823" + std::string(32, '0'));
}

TEST(SingleText, WhatIsNoNumberIsZero) {
    EXPECT_EQ(singleText(std::numeric_limits<float>::quiet_NaN()), "0");
    EXPECT_EQ(singleText(std::numeric_limits<float>::infinity()), "0");
    EXPECT_EQ(singleText(-std::numeric_limits<float>::infinity()), "0");
    EXPECT_EQ(singleText(-0.0F), "0");
}

TEST(SingleText, ReadsBackWithinHalfAUnitOfTheSeventhDigit) {
    std::mt19937 random(20250101);
    std::uniform_real_distribution<float> board(-2000.0F, 2000.0F);
    for (int i = 0; i < 20000; ++i) {
        const float value = board(random);
        const std::string text = singleText(value);
        ASSERT_LE(text.find_first_of("eE"), std::string::npos);
        const auto read = numericField(text);
        ASSERT_TRUE(read.has_value()) << text;
        ASSERT_NEAR(*read, static_cast<double>(value), std::fabs(static_cast<double>(value)) * 5e-7 + 1e-12)
            << text;
        ASSERT_EQ(singleText(static_cast<float>(*read)), text) << "a second save changes nothing";
    }
}

TEST(RoundToInt16, GoesToTheNearest) {
    EXPECT_EQ(roundToInt16(1.4), 1);
    EXPECT_EQ(roundToInt16(1.6), 2);
    EXPECT_EQ(roundToInt16(-1.6), -2);
    EXPECT_EQ(roundToInt16(0.49999999999999994), 0);
}

TEST(RoundToInt16, TakesHalvesToTheEvenNeighbour) {
    EXPECT_EQ(roundToInt16(0.5), 0);
    EXPECT_EQ(roundToInt16(1.5), 2);
    EXPECT_EQ(roundToInt16(2.5), 2);
    EXPECT_EQ(roundToInt16(-0.5), 0);
    EXPECT_EQ(roundToInt16(-1.5), -2);
    EXPECT_EQ(roundToInt16(-2.5), -2);
}

TEST(RoundToInt16, WrapsPastTheRange) {
    EXPECT_EQ(roundToInt16(32767.0), 32767);
    EXPECT_EQ(roundToInt16(32767.5), -32768);
    EXPECT_EQ(roundToInt16(32768.0), -32768);
    EXPECT_EQ(roundToInt16(-32769.0), 32767);
    EXPECT_EQ(roundToInt16(40000.0), -25536);
    EXPECT_EQ(roundToInt16(65536.0), 0);
    EXPECT_EQ(roundToInt16(1e300), roundToInt16(std::fmod(1e300, 65536.0)));
}

TEST(RoundToInt32, WrapsPastTheRange) {
    EXPECT_EQ(roundToInt32(2147483647.0), 2147483647);
    EXPECT_EQ(roundToInt32(2147483648.0), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(roundToInt32(4294967296.0), 0);
    EXPECT_EQ(roundToInt32(4294967295.0), -1);
    EXPECT_EQ(roundToInt32(-2147483649.0), 2147483647);
    EXPECT_EQ(roundToInt32(2.5), 2);
    EXPECT_EQ(roundToInt32(3.5), 4);
}

TEST(RoundToInt, WhatIsNoNumberIsZero) {
    EXPECT_EQ(roundToInt16(std::nan("")), 0);
    EXPECT_EQ(roundToInt16(HUGE_VAL), 0);
    EXPECT_EQ(roundToInt32(std::nan("")), 0);
    EXPECT_EQ(roundToInt32(-HUGE_VAL), 0);
}

TEST(ToSingle, IsAlwaysFinite) {
    EXPECT_EQ(toSingle(92.5), 92.5F);
    EXPECT_EQ(toSingle(1e300), std::numeric_limits<float>::max());
    EXPECT_EQ(toSingle(-1e300), -std::numeric_limits<float>::max());
    EXPECT_EQ(toSingle(std::nan("")), 0.0F);
    EXPECT_EQ(toSingle(1e-300), 0.0F);
}

struct FieldCase {
    const char* text;
    double value;
};
class NumericFieldTakes : public testing::TestWithParam<FieldCase> {};
TEST_P(NumericFieldTakes, Decimals) {
    const auto value = numericField(GetParam().text);
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(*value, GetParam().value);
}
INSTANTIATE_TEST_SUITE_P(Rows, NumericFieldTakes,
                         testing::Values(FieldCase{"10", 10}, FieldCase{"-10", -10}, FieldCase{"+10", 10},
                                         FieldCase{"92.5", 92.5}, FieldCase{".5", 0.5}, FieldCase{"5.", 5},
                                         FieldCase{"1e3", 1000}, FieldCase{"1E+3", 1000},
                                         FieldCase{"25e-1", 2.5}, FieldCase{"  7 ", 7}, FieldCase{"\t7\v", 7},
                                         FieldCase{"007", 7}, FieldCase{"-0", 0}, FieldCase{"1e-999", 0},
                                         FieldCase{"0.0000001", 1e-7}));

class NumericFieldRefuses : public testing::TestWithParam<const char*> {};
TEST_P(NumericFieldRefuses, AnythingElse) {
    EXPECT_FALSE(numericField(GetParam()).has_value());
}
INSTANTIATE_TEST_SUITE_P(Rows, NumericFieldRefuses,
                         testing::Values("", " ", ".", "-", "+", "e5", "1e", "1e+", "1 2", "1,2", "1.2.3",
                                         "--1", "+-1", "0x10", "&H10", "inf", "nan", "Infinity", "NaN",
                                         "1e999", "-1e999", "$5", "5%", "1_000", "1d3", "abc", "12a", "- 1",
                                         "1e 3",
                                         "\xC2\xA0"
                                         "5",
                                         "5\n"));

TEST(NumericField, TooManyZerosBehindThePointAreTooSmallNotTooBig) {
    EXPECT_EQ(numericField("0." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(numericField("0." + std::string(400, '0') + "1e400"), 0.1);
    EXPECT_FALSE(numericField("1" + std::string(400, '0')).has_value());
    EXPECT_FALSE(numericField("1" + std::string(400, '0') + "e-5").has_value());
    EXPECT_FALSE(numericField("1e99999999999999999999").has_value());
    EXPECT_EQ(numericField("1e-99999999999999999999"), 0.0);
}

TEST(NumericField, TakesAZeroByteForNoNumber) {
    EXPECT_FALSE(numericField(std::string_view("5\0", 2)).has_value());
}

TEST(LeadingNumber, EndsAtTheFirstOtherCharacter) {
    EXPECT_EQ(leadingNumber("12abc"), 12.0);
    EXPECT_EQ(leadingNumber("  -3.5 units"), -3.5);
    EXPECT_EQ(leadingNumber("1.2.3"), 1.2);
    EXPECT_EQ(leadingNumber("1e"), 1.0);
    EXPECT_EQ(leadingNumber("1e+x"), 1.0);
    EXPECT_EQ(leadingNumber("2e2x"), 200.0);
    EXPECT_EQ(leadingNumber("1 2"), 1.0);
    EXPECT_EQ(leadingNumber(".5."), 0.5);
}

TEST(LeadingNumber, IsZeroWithoutOne) {
    EXPECT_EQ(leadingNumber(""), 0.0);
    EXPECT_EQ(leadingNumber("abc"), 0.0);
    EXPECT_EQ(leadingNumber("-"), 0.0);
    EXPECT_EQ(leadingNumber("."), 0.0);
    EXPECT_EQ(leadingNumber("inf"), 0.0);
    EXPECT_EQ(leadingNumber("nan"), 0.0);
    EXPECT_EQ(leadingNumber("1e999"), 0.0);
}

} // namespace
