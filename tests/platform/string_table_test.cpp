#include "platform/string_table.h"

#include <gtest/gtest.h>

namespace zeltrona::platform {
namespace {

std::string textOf(std::int16_t id) {
    const auto text = lookUpString(id);
    return text ? text->toStdString() : "(none)";
}

TEST(StringTable, GivesTheTextsOfBothLanguages) {
    EXPECT_EQ(textOf(100), "Select");
    EXPECT_EQ(textOf(101), "Saved File");
    EXPECT_EQ(textOf(117), "Sequence");
    EXPECT_EQ(textOf(126), "Click to drop a triagle.");
    EXPECT_EQ(textOf(400), "Izaberi");
    EXPECT_EQ(textOf(401), "Postojeca datoteka");
    EXPECT_EQ(textOf(423),
              "Linearna linija.Koristi Esc da ponistis,Alt+Klik ili Desni Klik da zavrsis liniju.");
    EXPECT_EQ(textOf(452), "Crn");
}

TEST(StringTable, SetsAreParallelAtADistanceOf300) {
    for (std::int16_t id = 100; id < 400; ++id) {
        const bool expected = id <= 134 || (id >= 150 && id <= 152);
        EXPECT_EQ(lookUpString(id).has_value(), expected) << id;
        EXPECT_EQ(lookUpString(static_cast<std::int16_t>(id + 300)).has_value(), expected) << id + 300;
    }
}

TEST(StringTable, LanguagesWithoutStringsHaveNone) {
    for (const short base : {short{1300}, short{1600}, short{1900}, short{2200}}) {
        EXPECT_FALSE(lookUpString(base).has_value()) << base;
        EXPECT_FALSE(lookUpString(static_cast<std::int16_t>(base + 22)).has_value()) << base;
    }
}

TEST(StringTable, NegativeIdHasNoText) {
    EXPECT_FALSE(lookUpString(-1).has_value());
    EXPECT_FALSE(lookUpString(-32768).has_value());
}

TEST(StringTable, ParserPassesOverWhatIsNoRow) {
    const auto table =
        parseStringTable("# note\n\n7\tseven\nx\ty\n99999\tfar\n\tnothing\n8\n9\ta\tb\n7\tagain");
    ASSERT_EQ(table.size(), 2U);
    EXPECT_EQ(table.at(7), QStringLiteral("seven"));
    EXPECT_EQ(table.at(9), QStringLiteral("a\tb"));
}

TEST(StringTable, MissingIdIsNamed) {
    EXPECT_EQ(missingStringText(1322).toStdString(), "Resource with identifier '1322' not found");
}

} // namespace
} // namespace zeltrona::platform
