#include "document/field_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

namespace zeltrona::document {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> textsOf(std::string_view value, FieldTest test) {
    std::vector<std::string> texts;
    for (const ListField& field : splitFields(value, test)) {
        texts.emplace_back(field.text);
    }
    return texts;
}

TEST(FieldList, AFieldCountsOnlyIfACommaEndsIt) {
    EXPECT_THAT(textsOf("1,2,3", FieldTest::Numeric), ElementsAre("1", "2"));
    EXPECT_THAT(textsOf("1,2,3,", FieldTest::Numeric), ElementsAre("1", "2", "3"));
    EXPECT_THAT(textsOf("12", FieldTest::Numeric), IsEmpty());
    EXPECT_THAT(textsOf("", FieldTest::Any), IsEmpty());
}

TEST(FieldList, AFieldThatIsNoNumberGivesItsPlaceToTheNext) {
    EXPECT_THAT(textsOf("1,x,,2,1e5z,3,", FieldTest::Numeric), ElementsAre("1", "2", "3"));
}

TEST(FieldList, OnlyDecimalNumbersAreNumeric) {
    EXPECT_THAT(textsOf("nan,inf,NaN,Infinity,-inf,&H10,0x10,$5,1 2,", FieldTest::Numeric), IsEmpty());
    EXPECT_THAT(textsOf("-1, 2 ,+3,.5,5.,1e2,", FieldTest::Numeric),
                ElementsAre("-1", " 2 ", "+3", ".5", "5.", "1e2"));
}

TEST(FieldList, WithoutTheTestEveryFieldCounts) {
    EXPECT_THAT(textsOf("a,,b c,", FieldTest::Any), ElementsAre("a", "", "b c"));
}

TEST(FieldList, WithoutTheTestTheNumberAtTheStartIsTaken) {
    const std::vector<ListField> fields = splitFields("12pt,x9, 7 ,", FieldTest::Any);
    ASSERT_EQ(fields.size(), 3U);
    EXPECT_EQ(fields[0].number, 12.0);
    EXPECT_EQ(fields[1].number, 0.0);
    EXPECT_EQ(fields[2].number, 7.0);
}

} // namespace

} // namespace zeltrona::document
