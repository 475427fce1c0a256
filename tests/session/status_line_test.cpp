#include "session/status_line.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

QString printed(const StatusLine& line) {
    return line.property("text").toString();
}

TEST(StatusLine, HoldsExactlyWhatIsPrinted) {
    StatusLine line(nullptr);
    line.print(QStringLiteral(" Ready"));
    EXPECT_EQ(printed(line), QStringLiteral(" Ready"));
    line.print(QStringLiteral(" (120,88.5) -Ready."));
    EXPECT_EQ(printed(line), QStringLiteral(" (120,88.5) -Ready."));
}

TEST(StatusLine, WarningStandsInFrontOfEveryHintUntilItIsTakenAway) {
    StatusLine line(nullptr);
    line.print(QStringLiteral("Ready."));
    line.setWarning(QStringLiteral("The play is not saved: disk full."));
    EXPECT_EQ(printed(line), QStringLiteral("The play is not saved: disk full. Ready."));
    line.print(QStringLiteral("Delete object."));
    EXPECT_EQ(printed(line), QStringLiteral("The play is not saved: disk full. Delete object."));
    line.setWarning({});
    EXPECT_EQ(printed(line), QStringLiteral("Delete object."));
}

TEST(StatusLine, TellsAssistivePrograms) {
    StatusLine line(nullptr);
    const QSignalSpy changed(&line, &StatusLine::textChanged);
    line.print(QStringLiteral("Ready."));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(line.accessibleDescription(), QStringLiteral("Ready."));
}

QRect inkOf(const QImage& picture, const QRect& space) {
    QRect ink;
    for (int y = space.top(); y <= space.bottom(); ++y) {
        for (int x = space.left(); x <= space.right(); ++x) {
            if (picture.pixelColor(x, y) != picture.pixelColor(picture.width() - 1, picture.height() - 1)) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

TEST(StatusLine, LongestHintFitsTheNarrowWindow) {
    StatusLine line(nullptr);
    line.resize(433, line.sizeHint().height());
    line.print(QStringLiteral(
        " (363,332) -Linearna linija.Koristi Esc da ponistis,Alt+Klik ili Desni Klik da zavrsis "
        "liniju."));
    line.show();
    const QImage picture = line.grab().toImage();
    const QRect inside = picture.rect().adjusted(0, 2, 0, 0);
    const QRect ink = inkOf(picture, inside);
    EXPECT_GT(ink.height(), line.fontMetrics().height()) << "one line only";
    EXPECT_LT(ink.bottom(), picture.height() - 1);
    EXPECT_LT(ink.right(), picture.width() - 4);
    EXPECT_TRUE(line.toolTip().isEmpty()) << "the hint is cut";
}

TEST(StatusLine, WhatIsTooLongIsWholeInTheToolTip) {
    StatusLine line(nullptr);
    line.resize(200, line.sizeHint().height());
    const QString text = QStringLiteral("word ").repeated(40);
    line.print(text);
    EXPECT_EQ(line.toolTip(), text);
}

} // namespace
} // namespace zeltrona::session
