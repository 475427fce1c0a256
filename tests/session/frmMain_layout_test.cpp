#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

using testing::control;
using testing::OpenPlay;

QRect placeOf(OpenPlay& play, const char* name) {
    const auto& found = control<QWidget>(play.window(), QString::fromLatin1(name));
    return {found.mapTo(&play.window(), QPoint(0, 0)), found.size()};
}

/// The same, counted from below the menu.
QPoint placeBelowMenu(OpenPlay& play, const char* name) {
    return placeOf(play, name).topLeft() - QPoint(0, play.window().menuBar()->height());
}

class MainWindowLayout : public ::testing::TestWithParam<int> {};

TEST_P(MainWindowLayout, SmallCourtHasTheNarrowWindow) {
    OpenPlay play(testing::playOnCourt(1), GetParam());
    EXPECT_EQ(play.window().size(), QSize(433, 542));
    EXPECT_EQ(placeBelowMenu(play, "pic").y(), 15);
    EXPECT_EQ(placeOf(play, "pic").size(), QSize(363, 332));
    EXPECT_EQ(placeBelowMenu(play, "Frame1"), QPoint(21, 362));
    EXPECT_EQ(placeBelowMenu(play, "pToolAnim"), QPoint(54, 411));
}

TEST_P(MainWindowLayout, BigCourtHasTheWideWindow) {
    OpenPlay play(testing::playOnCourt(6), GetParam());
    EXPECT_EQ(play.window().size(), QSize(606, 542));
    EXPECT_EQ(placeBelowMenu(play, "pic").y(), 15);
    EXPECT_EQ(placeOf(play, "pic").size(), QSize(532, 295));
    EXPECT_EQ(placeBelowMenu(play, "Frame1"), QPoint(61, 324));
    EXPECT_EQ(placeBelowMenu(play, "pToolAnim"), QPoint(94, 371));
}

TEST_P(MainWindowLayout, NothingIsCutOffOrCovered) {
    for (const int court : {1, 3}) {
        OpenPlay play(testing::playOnCourt(court), GetParam());
        const QRect window = play.window().rect();
        const char* parts[] = {"pic", "Frame1", "pToolAnim", "pStatus", "pToolbox"};
        for (const char* part : parts) {
            EXPECT_TRUE(window.contains(placeOf(play, part))) << part;
            for (const char* other : parts) {
                if (part != other) {
                    EXPECT_FALSE(placeOf(play, part).intersects(placeOf(play, other)))
                        << part << " on " << other;
                }
            }
        }
    }
}

TEST_P(MainWindowLayout, CaptionsFitWithRoomToSpare) {
    OpenPlay play(testing::threeFramePlay(), GetParam());
    for (const char* name : {"seqSave", "seqNew", "seqDel", "seqNotes"}) {
        const auto& button = control<QAbstractButton>(play.window(), QString::fromLatin1(name));
        EXPECT_GE(button.width(), button.fontMetrics().horizontalAdvance(button.text()) * 6 / 5 + 8) << name;
        EXPECT_GE(button.height(), button.fontMetrics().height() + 4) << name;
    }
    const auto& curve = control<QLabel>(play.window(), QStringLiteral("Label3"));
    EXPECT_GE(curve.width(), curve.fontMetrics().horizontalAdvance(curve.text()));
    const auto& counter = control<QLineEdit>(play.window(), QStringLiteral("txtSeq"));
    EXPECT_GE(counter.width(), counter.fontMetrics().horizontalAdvance(QStringLiteral("100 of 100")) + 8);
}

TEST_P(MainWindowLayout, PanelsHoldTheirControls) {
    OpenPlay play(testing::threeFramePlay(), GetParam());
    for (const char* panel : {"Frame1", "pToolAnim", "pToolbox"}) {
        auto& holder = control<QWidget>(play.window(), QString::fromLatin1(panel));
        const auto inside = holder.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (const QWidget* one : inside) {
            EXPECT_TRUE(!one->isVisible() || holder.rect().contains(one->geometry()))
                << panel << " cuts " << qPrintable(one->objectName());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, MainWindowLayout, ::testing::Values(0, 1));

TEST(MainWindowLayoutOnce, CourtOutsideOneToNineKeepsTheDesignSize) {
    for (const int court : {0, 10}) {
        OpenPlay play(testing::playOnCourt(court));
        EXPECT_EQ(play.window().size(), QSize(433, 542)) << court;
        EXPECT_EQ(placeOf(play, "pic").size(), QSize(363, 332)) << court;
    }
}

TEST(MainWindowLayoutOnce, TextureKeepsTheSizeOfTheBoard) {
    std::string bytes = testing::playOnCourt(3);
    bytes.replace(bytes.find("courtTexture=0"), 14, "courtTexture=1");
    OpenPlay play(bytes);
    EXPECT_EQ(placeOf(play, "pic").size(), QSize(532, 295));
}

TEST(MainWindowLayoutOnce, LargerWindowKeepsThePartsTogether) {
    OpenPlay play;
    const QPoint pic = placeOf(play, "pic").topLeft();
    const QPoint frames = placeOf(play, "Frame1").topLeft();
    const QPoint tools = placeOf(play, "pToolbox").topLeft();
    play.window().resize(1000, 900);
    testing::settle();
    const QPoint moved = placeOf(play, "pic").topLeft() - pic;
    EXPECT_GT(moved.x(), 100);
    EXPECT_EQ(placeOf(play, "Frame1").topLeft() - frames, moved);
    EXPECT_EQ(placeOf(play, "pToolbox").topLeft() - tools, moved);
    EXPECT_EQ(placeOf(play, "pStatus").bottom(), play.window().rect().bottom());
    EXPECT_EQ(placeOf(play, "pStatus").width(), 1000);
}

TEST(MainWindowLayoutOnce, LargerFontPushesNothingOutOfTheWindow) {
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSize(16);
    QApplication::setFont(large);
    {
        OpenPlay play(testing::threeFramePlay(), 1);
        for (const char* part : {"pic", "Frame1", "pToolAnim", "pStatus", "pToolbox"}) {
            EXPECT_TRUE(play.window().rect().contains(placeOf(play, part))) << part;
        }
        EXPECT_FALSE(placeOf(play, "Frame1").intersects(placeOf(play, "pToolAnim")));
        EXPECT_FALSE(placeOf(play, "pToolAnim").intersects(placeOf(play, "pStatus")));
    }
    QApplication::setFont(before);
}

TEST(MainWindowLayoutOnce, EveryControlHasANameInPlainWords) {
    OpenPlay play;
    const auto all = play.window().findChildren<QWidget*>();
    for (const QWidget* one : all) {
        const bool isControl =
            !one->objectName().isEmpty() && !one->objectName().startsWith(QLatin1String("qt_"));
        const bool isMenu = one->inherits("QMenu") || one->inherits("QMenuBar");
        if (isControl && !isMenu) {
            EXPECT_FALSE(one->accessibleName().isEmpty()) << qPrintable(one->objectName());
        }
    }
}

} // namespace
} // namespace zeltrona::session
