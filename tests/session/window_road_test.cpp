#include "session/frmGameSelect.h"
#include "session/frmMain.h"
#include "session/frmSplash.h"
#include "session/window_road.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QApplication>
#include <QComboBox>
#include <QSignalSpy>
#include <QTimer>

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

using testing::choose;
using testing::click;
using testing::control;
using testing::DialogAnswerer;

const QString kOpenTitle = QStringLiteral("Select existing game");

/// The names of the windows that are up.
QStringList windowsUp() {
    testing::settle();
    QStringList names;
    const auto all = QApplication::topLevelWidgets();
    for (const QWidget* one : all) {
        if (one->isVisible()) {
            names << one->objectName();
        }
    }
    names.sort();
    return names;
}

QWidget& up(const char* name) {
    const auto all = QApplication::topLevelWidgets();
    for (QWidget* one : all) {
        if (one->isVisible() && one->objectName() == QLatin1String(name)) {
            return *one;
        }
    }
    testing::failMissing(QString::fromLatin1(name));
}

class RoadTest : public ::testing::Test {
protected:
    ~RoadTest() override {
        const auto all = QApplication::topLevelWidgets();
        for (QWidget* one : all) {
            one->close();
        }
        testing::settle();
    }
    void openPlay() {
        answers.expectFile(kOpenTitle, source.path());
        click(up("frmGameSelect"), QStringLiteral("Command3"));
    }

    testing::OpenPlay source;
    bool hidden = (source.window().hide(), true);
    DialogAnswerer answers;
    document::Session session;
    WindowRoad road{session, testing::boardArt()};
};

TEST_F(RoadTest, SplashGivesWayToTheSelection) {
    road.showSplash();
    EXPECT_EQ(windowsUp(), QStringList(QStringLiteral("frmSplash")));
    control<QTimer>(up("frmSplash"), QStringLiteral("Timer1")).setInterval(1);
    testing::waitUntil([] { return windowsUp() == QStringList(QStringLiteral("frmGameSelect")); });
}

TEST_F(RoadTest, SavedFileOpensTheMainWindowAlone) {
    road.showGameSelect();
    openPlay();
    EXPECT_EQ(windowsUp(), QStringList(QStringLiteral("frmMain")));
    EXPECT_EQ(up("frmMain").windowTitle(), QStringLiteral("Zeltrona - play.zpf"));
}

TEST_F(RoadTest, NewAndOpenReturnToTheSelectionWithTheLanguage) {
    for (const char* entry : {"mnuFileNew", "mnuFileOpen"}) {
        road.showGameSelect();
        control<QComboBox>(up("frmGameSelect"), QStringLiteral("ComboLang")).setCurrentIndex(3);
        openPlay();
        choose(up("frmMain"), QString::fromLatin1(entry));
        EXPECT_EQ(windowsUp(), QStringList(QStringLiteral("frmGameSelect")));
        EXPECT_EQ(control<QComboBox>(up("frmGameSelect"), QStringLiteral("ComboLang")).currentText(),
                  QStringLiteral("Serbian"));
        up("frmGameSelect").close();
    }
}

TEST_F(RoadTest, EditsThatWereNotSavedAreGoneWithoutAQuestion) {
    road.showGameSelect();
    openPlay();
    choose(up("frmMain"), QStringLiteral("mnuFileOpen"));
    EXPECT_EQ(answers.answered(), 1);
    EXPECT_EQ(source.bytes(), testing::threeFramePlay());
}

TEST_F(RoadTest, LanguageWithoutStringsEndsTheProgramWithARunTimeError) {
    const QSignalSpy failed(&road, &WindowRoad::failed);
    road.showGameSelect();
    control<QComboBox>(up("frmGameSelect"), QStringLiteral("ComboLang")).setCurrentIndex(4);
    answers.expectFile(kOpenTitle, source.path());
    answers.expectMessage(
        QStringLiteral("Run-time error '326':\n\nResource with identifier '1322' not found"));
    click(up("frmGameSelect"), QStringLiteral("Command3"));
    ASSERT_EQ(failed.count(), 1);
    EXPECT_NE(failed.first().first().toInt(), 0);
    EXPECT_EQ(source.bytes(), testing::threeFramePlay());
    EXPECT_FALSE(windowsUp().contains(QStringLiteral("frmMain")));
}

TEST_F(RoadTest, ClosingTheLastWindowLeavesNone) {
    road.showGameSelect();
    openPlay();
    choose(up("frmMain"), QStringLiteral("mnuFileExit"));
    EXPECT_TRUE(windowsUp().isEmpty());
}

} // namespace
} // namespace zeltrona::session
