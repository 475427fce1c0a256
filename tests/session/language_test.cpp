#include "session/language.h"

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

struct LanguageRow {
    const char* text;
    std::int16_t langIndex;
    std::int16_t stringBase;
};

constexpr LanguageRow kTable[] = {
    {"English", 0, 100},  {"Serbian", 1, 400},   {"Croatian", 1, 400}, {"Bosnian", 1, 400},
    {"Italian", 4, 1300}, {"Francais", 5, 1600}, {"Espanol", 6, 1900}, {"Deutsch", 7, 2200},
};

TEST(Language, EachListEntryHasItsIndexAndItsStrings) {
    ASSERT_EQ(languageNames().size(), 8);
    for (int index = 0; index < 8; ++index) {
        document::Session session;
        chooseLanguage(session, index);
        EXPECT_EQ(languageNames().at(index).toStdString(), kTable[index].text);
        EXPECT_EQ(session.langIndex, kTable[index].langIndex) << index;
        EXPECT_EQ(session.stringBase, kTable[index].stringBase) << index;
    }
}

TEST(Language, TextsComeFromTheSetOfTheRun) {
    document::Session session;
    EXPECT_EQ(localText(session, 17), QStringLiteral("Sequence"));
    chooseLanguage(session, 3);
    EXPECT_EQ(localText(session, 17), QStringLiteral("Sekvenca"));
    chooseLanguage(session, 7);
    EXPECT_FALSE(localText(session, 17).has_value());
    EXPECT_EQ(stringId(session, 17), 2217);
}

} // namespace
} // namespace zeltrona::session
