#include "dialogs/text_limits.h"

#include <gtest/gtest.h>

namespace zeltrona::dialogs {
namespace {

QString letters(int count) {
    return QString(count, u'x');
}

TEST(DescriptionLimit, FourLinesStay) {
    const QString text = QStringLiteral("a\nb\nc\nd");
    EXPECT_EQ(limitDescription(text), (LimitedText{text, {}}));
}

TEST(DescriptionLimit, FifthLineIsCutWithTheMessage) {
    EXPECT_EQ(limitDescription(QStringLiteral("a\nb\nc\nd\n")),
              (LimitedText{QStringLiteral("a\nb\nc\nd"), QStringLiteral("max 4 lines!")}));
    EXPECT_EQ(limitDescription(QStringLiteral("a\nb\nc\nd\ne\nf")).text, QStringLiteral("a\nb\nc\nd"));
}

TEST(DescriptionLimit, KeepsFewerThan255Characters) {
    EXPECT_EQ(limitDescription(letters(254)), (LimitedText{letters(254), {}}));
    EXPECT_EQ(limitDescription(letters(255)), (LimitedText{letters(254), QStringLiteral("max 255 char!")}));
    EXPECT_EQ(limitDescription(letters(400)).text, letters(254));
}

TEST(DescriptionLimit, LineBreakCountsAsTheTwoCharactersThatItIsTypedAs) {
    EXPECT_EQ(limitDescription(letters(251) + "\nx").message, QString());
    EXPECT_EQ(limitDescription(letters(252) + "\nx"),
              (LimitedText{letters(252) + "\n", QStringLiteral("max 255 char!")}));
}

TEST(DescriptionLimit, OneChangeBringsTheLineMessageOnly) {
    const LimitedText kept = limitDescription(letters(300) + "\n\n\n\n");
    EXPECT_EQ(kept.message, QStringLiteral("max 4 lines!"));
    EXPECT_EQ(kept.text, letters(254));
}

TEST(NoteLimit, KeepsFewerThan100Characters) {
    EXPECT_EQ(limitNote(letters(99)), (LimitedText{letters(99), {}}));
    EXPECT_EQ(limitNote(letters(100)), (LimitedText{letters(99), QStringLiteral("max 100 char!")}));
}

TEST(NoteLimit, IsASingleLine) {
    EXPECT_EQ(limitNote(QStringLiteral("cut\n")), (LimitedText{QStringLiteral("cut"), {}}));
    EXPECT_EQ(limitNote(QStringLiteral("cut\nhard")), (LimitedText{QStringLiteral("cut hard"), {}}));
}

TEST(StorableText, ShowsWhatTheCodePageLacks) {
    EXPECT_EQ(storableText(QStringLiteral("\u010d\u0436"), 238), QStringLiteral("\u010d?"));
    EXPECT_EQ(storableText(QStringLiteral("\u0436"), 204), QStringLiteral("\u0436"));
}

TEST(StorableText, DescriptionRefusesTheLetterThatStandsForALineBreak) {
    EXPECT_EQ(storableDescription(QStringLiteral("a\u00aeb"), 238), QStringLiteral("ab"));
}

} // namespace
} // namespace zeltrona::dialogs
