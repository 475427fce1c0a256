#include "platform/program_fonts.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QStringList>

#include <gtest/gtest.h>

namespace zeltrona::platform {
namespace {

TEST(ProgramFonts, ArialIsThereOrStandsForItsSubstitute) {
    EXPECT_TRUE(isArialAvailable());
}

TEST(ProgramFonts, ArialHasTheWidthsOfItsMetricCompatibleSubstitute) {
    QFont arial(QStringLiteral("Arial"));
    QFont substitute(QStringLiteral("Liberation Sans"));
    ASSERT_TRUE(QFontDatabase::families().contains(substitute.family()));
    arial.setPixelSize(100);
    substitute.setPixelSize(100);
    const QString text = QStringLiteral("The quick brown fox 0123456789");
    EXPECT_EQ(QFontMetrics(arial).horizontalAdvance(text), QFontMetrics(substitute).horizontalAdvance(text));
}

TEST(ProgramFonts, HeadingIsTheInterfaceFontInBold) {
    EXPECT_TRUE(headingFont().bold());
    EXPECT_EQ(headingFont().family(), QFont().family());
}

} // namespace
} // namespace zeltrona::platform
